#pragma once

namespace quorb {

// Longitudes and latitudes are degrees, heights and positions metres unless told otherwise. The ellipsoid is
// WGS-84: semi-major axis 6378137 m, flattening 1 / 298.257223563.

/// The point at `longitude`, `latitude` and `radius` around a centre. Longitude counts from the Y axis toward
/// X. The unit is that of the radius and the centre.
void PolarToXYZ(double longitude, double latitude, double radius, double centreX, double centreY,
                double centreZ, double& x, double& y, double& z);

/// The Earth-fixed position of a geodetic place. Returns 1.
int GeoToEcef(double latitude, double longitude, double height, double& X, double& Y, double& Z);

/// The geocentric latitude, in radians and single precision, of a place at the distance `p` from the Earth's
/// axis and `z` above the equator. 0 where `z` or `p` is beyond the range of single precision.
float AtanLatitude(double z, double p);

/// A place on Earth with its local axes, ready to turn many offsets.
struct NedPlace {
  double X = 0.0;  // Earth-fixed position, m
  double Y = 0.0;
  double Z = 0.0;
  double cosLongitude = 1.0;
  double sinLongitude = 0.0;
  double cosLatitude = 1.0;  // of the geocentric latitude
  double sinLatitude = 0.0;
};

/// The place at a geodetic latitude, longitude and height. The axes stand on the geocentric latitude, so they
/// differ from the vertical by up to a fifth of a degree.
NedPlace NedPlaceAt(double latitude, double longitude, double height);

/// The Earth-fixed position of a point that is given by its offsets north, east and down from `place`, times
/// `scale`; of one point, or of two with TwoNumbers.
template <class Number>
void NedToEcef(const NedPlace& place, Number north, Number east, Number down, Number& X, Number& Y, Number& Z,
               double scale) {
  const double cl = place.cosLongitude;
  const double sl = place.sinLongitude;
  const double cp = place.cosLatitude;
  const double sp = place.sinLatitude;
  X = (-east * sl - north * cl * sp - down * cl * cp + place.X) * scale;
  Y = (east * cl - north * sl * sp - down * sl * cp + place.Y) * scale;
  Z = (north * cp - down * sp + place.Z) * scale;
}

/// The same for a single point of the place at a geodetic latitude, longitude and height. Returns 1.
int NedToEcef(double latitude, double longitude, double height, double north, double east, double down,
              double& X, double& Y, double& Z, double scale);

}  // namespace quorb
