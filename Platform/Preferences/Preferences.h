// The framework of Settings in one.
#pragma once

#include <Preferences/PSListController.h>
#include <Preferences/PSSpecifier.h>
#include <Preferences/PSTableCell.h>
