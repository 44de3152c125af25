#pragma once

#include "LandMap.h"
#include "Surface.h"

namespace quorb {

/// Pictures of the bodies, unrolled. The Earth's follows `land`; the others show what a telescope shows in
/// colour and pattern, not in every place.
PixelImage EarthPicture(const LandMap& land);
PixelImage MoonPicture();
PixelImage SunPicture();
PixelImage MercuryPicture();
PixelImage VenusPicture();
PixelImage MarsPicture();
PixelImage JupiterPicture();

}  // namespace quorb
