// Core Graphics in one: geometry and drawing.
#pragma once

#include <CoreGraphics/CGDrawing.h>
#include <CoreGraphics/CGGeometry.h>
