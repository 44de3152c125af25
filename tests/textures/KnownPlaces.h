#pragma once

namespace quorb {

/// A place of which everybody knows whether it is land: degrees to the east and north.
struct KnownPlace {
  const char* name;
  double longitude, latitude;
};

inline constexpr KnownPlace kLandPlaces[] = {{"Paris", 2.3, 48.8},         {"Moscow", 37.6, 55.8},
                                             {"Cairo", 31.2, 30},          {"Congo", 20, 0},
                                             {"Timbuktu", -3, 16.8},       {"Madagascar", 47, -19},
                                             {"Delhi", 77.2, 28.6},        {"Beijing", 116.4, 40},
                                             {"Novosibirsk", 82.9, 55},    {"Honshu", 138, 36},
                                             {"Borneo", 114, 1},           {"Alice Springs", 133.9, -23.7},
                                             {"Tasmania", 146.6, -42},     {"Denver", -105, 39.7},
                                             {"Brasilia", -47.9, -15.8},   {"Patagonia", -69, -45},
                                             {"Alaska", -150, 65},         {"Greenland", -42, 72},
                                             {"Iceland", -18.5, 65},       {"Antarctica", 60, -80},
                                             {"the south pole", 0, -89.5}, {"north of Accra", 0, 7},
                                             {"east of Lisbon", -8, 38.5}, {"east of Nouakchott", -15, 18},
                                             {"west of Savannah", -83, 32}};

inline constexpr KnownPlace kSeaPlaces[] = {{"Greenwich's meridian on the equator", 0, 0},
                                            {"middle of the Atlantic", -40, 30},
                                            {"middle of the Pacific", -150, 0},
                                            {"the date line", 179.9, 30},
                                            {"Indian Ocean", 75, -20},
                                            {"Mediterranean", 18, 35},
                                            {"Black Sea", 35, 43},
                                            {"Red Sea", 38, 20},
                                            {"Bay of Bengal", 88, 15},
                                            {"Sea of Japan", 135, 40},
                                            {"Tasman Sea", 160, -38},
                                            {"Hudson Bay", -86, 60},
                                            {"Gulf of Mexico", -90, 25},
                                            {"Drake Passage", -65, -58},
                                            {"Bay of Biscay", -5, 45},
                                            {"the north pole", 0, 89.5},
                                            {"south of Accra", 0, 4.5},
                                            {"west of Lisbon", -10.5, 38.5},
                                            {"west of Nouakchott", -17.5, 18},
                                            {"east of Savannah", -79, 32}};

}  // namespace quorb
