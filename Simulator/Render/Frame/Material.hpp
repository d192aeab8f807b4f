// The arithmetic of translucent materials.
#pragma once

#include "Render/Bitmap.hpp"
#include "Render/DisplayList.hpp"
#include "Render/Drawing/Blur.hpp"

namespace render {

// How many pixels a side are averaged into one before blurring: 4, or 6 on screens of scale 3, and less for
// blurs too fine to hide it; 1 without a blur.
int reductionFor(double blurRadius, double scale);

// Averages squares of `factor` pixels of `source` into `target` from (x, y) on; squares cut off by the
// source's edge average what there is.
void reduce(const Bitmap &source, int factor, Bitmap &target, int x, int y);

Lanes unpack(uint32_t pixel);
uint32_t pack(Lanes cell);

// Saturation, then grey, then tint.
Lanes throughMaterial(Lanes cell, const Backdrop &style);

} // namespace render
