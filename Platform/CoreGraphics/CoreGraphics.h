#pragma once

#include <CoreGraphics/CGDrawing.h>
#include <CoreGraphics/CGGeometry.h>
