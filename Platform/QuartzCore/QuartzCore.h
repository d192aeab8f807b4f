// Core Animation in one.
#pragma once

#include <QuartzCore/CAAnimation.h>
#include <QuartzCore/CADisplayLink.h>
#include <QuartzCore/CAGradientLayer.h>
#include <QuartzCore/CALayer.h>
#include <QuartzCore/CAShapeLayer.h>
#include <QuartzCore/CATransform3D.h>
