#include "ExampleFiles.h"

namespace quorb {

const std::vector<ExampleFile>& ExampleFiles() {
  static const std::vector<ExampleFile> files = {
      {"metres-seconds.qbv", MetresSecondsExample},
      {"km.qbv", KmExample},
      {"kmday.qbv", KmdayExample},
      {"penup.qbv", PenupExample},
      {"penuplabel.qbv", PenuplabelExample},
      {"column.qbv", ColumnExample},
      {"yzx.qbv", YzxExample},
      {"ned.qbv", NedExample},
      {"valz.qbv", ValzExample},
      {"moon.qbv", MoonExample},
      {"sun.qbv", SunExample},
      {"mercury.qbv", MercuryExample},
      {"venus.qbv", VenusExample},
      {"mars.qbv", MarsExample},
      {"jupiter.qbv", JupiterExample},
      {"xyzw.qbv", XyzwExample},
      {"em-system.qbv", EmSystemExample},
  };
  return files;
}

}  // namespace quorb
