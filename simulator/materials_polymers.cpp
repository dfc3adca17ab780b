// Band tables of polymers as films a few hundredths of a millimetre thick.
#include "simulator/materials_tables.h"

#include <array>

namespace veritane::simulator {

namespace {

// CH stretch of the ring 3001 to 3103, of the chain 2850 and 2923; ring 1601, 1493, 1452, 757 and 698.
// Positions of the bands that serve to calibrate instruments carry a decimal.
constexpr Band kPolystyrene[] = {
    {3103, .03, 14},   {3082.2, .10, 15}, {3060, .17, 17},   {3026.4, .30, 15}, {3001.4, .07, 11},
    {2923, .34, 32},   {2850.1, .16, 20}, {1943, .04, 17},   {1870, .035, 17},  {1802, .03, 17},
    {1745, .02, 16},   {1601.2, .17, 9},  {1583, .04, 8},    {1541, .012, 12},  {1493, .36, 9},
    {1452, .34, 14},   {1371, .04, 17},   {1328, .03, 16},   {1312, .02, 14},   {1181, .03, 11},
    {1154.5, .03, 10}, {1069.1, .05, 14}, {1028.3, .10, 10}, {1003, .02, 8},    {980, .02, 12},
    {964, .022, 10},   {942, .02, 14},    {906.6, .05, 13},  {841.9, .03, 16},  {757, .36, 13},
    {698, 1.0, 9},     {621, .012, 9},    {539.8, .16, 20}};

constexpr Band kPolyethylene[] = {
    {2950, .06, 24}, {2917, 1.0, 21},  {2895, .12, 34}, {2849, .74, 13}, {2660, .01, 30}, {2635, .01, 24},
    {1473, .24, 6},  {1463, .28, 8},   {1440, .05, 22}, {1377, .03, 9},  {1368, .04, 8},  {1353, .03, 9},
    {1304, .03, 18}, {1080, .015, 40}, {908, .01, 8},   {890, .01, 8},   {731, .13, 5},   {720, .22, 7}};

// Isotactic: 998 and 841 belong to the helix, 973 and 1153 to the chain.
constexpr Band kPolypropylene[] = {
    {2953, .88, 22}, {2919, 1.0, 28}, {2869, .52, 18}, {2838, .55, 18}, {2722, .04, 16},
    {1458, .64, 18}, {1436, .22, 16}, {1376, .74, 9},  {1359, .18, 11}, {1329, .04, 10},
    {1303, .05, 12}, {1256, .06, 11}, {1220, .04, 10}, {1167, .24, 14}, {1153, .12, 10},
    {1102, .06, 14}, {1044, .05, 11}, {998, .22, 8},   {973, .24, 10},  {940, .03, 12},
    {899, .05, 9},   {841, .20, 9},   {809, .08, 9},   {528, .03, 14},  {459, .03, 14}};

// Ester carbonyl 1715, C-C-O of the aromatic ester 1243 and 1262, O-C-C 1096, ring wag 726.
constexpr Band kPolyethyleneTerephthalate[] = {
    {3430, .02, 40}, {3054, .02, 20}, {2968, .05, 22}, {2908, .03, 30}, {1955, .01, 20}, {1715, .94, 18},
    {1615, .03, 9},  {1578, .05, 10}, {1505, .06, 7},  {1471, .06, 11}, {1453, .06, 12}, {1409, .22, 9},
    {1371, .09, 13}, {1340, .20, 13}, {1262, .62, 30}, {1243, .86, 26}, {1174, .14, 16}, {1120, .44, 17},
    {1096, .84, 26}, {1043, .16, 18}, {1018, .34, 8},  {971, .15, 16},  {898, .04, 18},  {872, .22, 9},
    {848, .10, 16},  {793, .07, 9},   {726, 1.0, 9},   {633, .05, 10},  {504, .16, 16},  {437, .12, 14}};

// C-Cl stretch 600 to 700, CH2 next to chlorine 1427, CH next to chlorine 1331 and 1254.
constexpr Band kPolyvinylChloride[] = {
    {2970, .20, 24}, {2935, .14, 26}, {2911, .32, 28}, {2851, .14, 24}, {2818, .08, 22}, {1435, .26, 15},
    {1427, .42, 12}, {1379, .08, 16}, {1354, .15, 14}, {1331, .32, 14}, {1254, .62, 20}, {1238, .18, 20},
    {1198, .14, 20}, {1098, .34, 30}, {1065, .10, 24}, {966, .46, 22},  {920, .05, 22},  {834, .16, 20},
    {692, .84, 30},  {637, .60, 18},  {614, 1.0, 20},  {540, .07, 30},  {492, .06, 24}};

// Ester carbonyl 1728, C-O-C 1145 to 1270, methoxy 1435 and 2951.
constexpr Band kPolymethylMethacrylate[] = {
    {3000, .14, 22}, {2994, .12, 24}, {2951, .32, 26}, {2925, .08, 30}, {2843, .06, 16}, {1728, 1.0, 21},
    {1483, .16, 14}, {1449, .26, 16}, {1435, .30, 14}, {1387, .13, 16}, {1367, .05, 14}, {1268, .28, 18},
    {1241, .40, 22}, {1192, .62, 22}, {1147, .92, 26}, {1063, .10, 18}, {988, .26, 18},  {966, .17, 16},
    {912, .06, 16},  {841, .13, 14},  {827, .05, 12},  {810, .04, 12},  {750, .16, 14},  {483, .08, 18}};

constexpr std::string_view kPolystyreneNames[] = {"ps", "polys"};
constexpr std::string_view kPolyethyleneNames[] = {"pe", "polythene", "ldpe"};
constexpr std::string_view kPolypropyleneNames[] = {"pp"};
constexpr std::string_view kTerephthalateNames[] = {"polyethylene terephthalate",
                                                    "poly(ethylene terephthalate)"};
constexpr std::string_view kChlorideNames[] = {"polyvinyl chloride", "poly(vinyl chloride)"};
constexpr std::string_view kMethacrylateNames[] = {"polymethyl methacrylate", "poly(methyl methacrylate)",
                                                   "acrylic glass"};

constexpr std::array<Material, 6> kPolymers{{
    {"polystyrene", kPolystyreneNames, 1.6, kPolystyrene},
    {"polyethylene", kPolyethyleneNames, 1.2, kPolyethylene},
    {"polypropylene", kPolypropyleneNames, 1.1, kPolypropylene},
    {"pet", kTerephthalateNames, 1.0, kPolyethyleneTerephthalate},
    {"pvc", kChlorideNames, 0.8, kPolyvinylChloride},
    {"pmma", kMethacrylateNames, 1.0, kPolymethylMethacrylate},
}};

}  // namespace

std::span<const Material> Polymers() {
  return kPolymers;
}

}  // namespace veritane::simulator
