// Band tables of pharmaceutical solids as discs of about one per cent in potassium bromide.
#include "simulator/materials_tables.h"

#include <array>

namespace veritane::simulator {

namespace {

// Acid dimer: broad OH stretch 2500 to 3300. Carbonyls: ester 1754, acid 1690; ester C-O 1189, acid C-O 1306.
constexpr Band kAcetylsalicylicAcid[] = {
    {3090, .12, 120, .2}, {3005, .20, 190, .2}, {2870, .24, 210, .2}, {2697, .22, 110, .3},
    {2591, .18, 90, .3},  {2543, .10, 60, .3},  {1754, .92, 13},      {1690, 1.0, 22},
    {1606, .66, 9},       {1576, .22, 9},       {1485, .32, 10},      {1458, .50, 10},
    {1438, .20, 12},      {1420, .34, 12},      {1370, .44, 10},      {1306, .72, 16},
    {1270, .24, 16},      {1222, .52, 13},      {1189, .92, 16},      {1134, .18, 10},
    {1094, .28, 9},       {1038, .12, 10},      {1013, .30, 10},      {970, .13, 9},
    {917, .50, 16},       {839, .24, 10},       {804, .28, 11},       {755, .54, 10},
    {704, .34, 10},       {666, .18, 12},       {599, .20, 11},       {555, .10, 10},
    {514, .10, 12}};

// Monoclinic form: NH stretch 3326, hydrogen-bonded OH 3162, amide I 1654, amide II 1565.
constexpr Band kParacetamol[] = {
    {3326, .66, 20},     {3162, .52, 150, .3}, {3035, .16, 110, .3}, {2930, .12, 120, .3},
    {2880, .10, 80, .3}, {2793, .08, 70, .3},  {1654, .92, 15},      {1611, .72, 12},
    {1565, .92, 18},     {1507, 1.0, 13},      {1443, .66, 14},      {1372, .34, 12},
    {1328, .44, 13},     {1260, .66, 14},      {1243, .46, 11},      {1227, .66, 12},
    {1172, .30, 11},     {1108, .25, 10},      {1015, .18, 9},       {968, .18, 10},
    {857, .18, 9},       {837, .52, 10},       {808, .30, 10},       {797, .26, 9},
    {714, .16, 16},      {684, .30, 15},       {625, .10, 10},       {603, .14, 10},
    {518, .36, 11},      {504, .26, 10}};

// Anhydrous: carbonyls 1700 and 1660, imidazole ring 1548, out-of-plane CH 745.
constexpr Band kCaffeine[] = {
    {3112, .16, 12}, {2990, .04, 20}, {2954, .15, 14}, {1700, .84, 14}, {1660, 1.0, 24}, {1600, .20, 14},
    {1548, .52, 12}, {1484, .28, 10}, {1471, .20, 10}, {1456, .30, 11}, {1431, .28, 11}, {1403, .18, 9},
    {1359, .30, 10}, {1327, .08, 10}, {1285, .24, 9},  {1238, .34, 9},  {1213, .09, 9},  {1188, .14, 8},
    {1132, .04, 8},  {1072, .06, 10}, {1026, .16, 8},  {973, .21, 8},   {861, .13, 8},   {760, .12, 8},
    {745, .46, 8},   {700, .10, 9},   {642, .09, 9},   {610, .26, 9},   {482, .20, 9},   {446, .10, 9}};

// Monohydrate of alpha-lactose: sharp water OH 3527, C-O and ring bands 890 to 1170.
constexpr Band kLactose[] = {
    {3527, .34, 22}, {3382, .50, 130, .2}, {3340, .30, 190, .2}, {3260, .22, 150, .2}, {2978, .12, 18},
    {2933, .22, 24}, {2900, .24, 22},      {2877, .14, 20},      {1654, .15, 42, .3},  {1470, .08, 18},
    {1429, .24, 20}, {1381, .24, 22},      {1341, .30, 16},      {1296, .16, 14},      {1261, .22, 13},
    {1219, .16, 14}, {1202, .18, 13},      {1168, .42, 14},      {1142, .56, 16},      {1116, .62, 18},
    {1094, .70, 18}, {1072, .86, 18},      {1035, 1.0, 20},      {1020, .72, 18},      {988, .62, 13},
    {916, .24, 11},  {899, .42, 11},       {876, .46, 11},       {780, .30, 13},       {703, .16, 22},
    {630, .28, 18},  {602, .26, 18},       {552, .26, 16},       {476, .16, 16}};

constexpr std::string_view kAspirinNames[] = {"aspirin", "2-acetoxybenzoic acid"};
constexpr std::string_view kParacetamolNames[] = {"acetaminophen"};
constexpr std::string_view kLactoseNames[] = {"lactose monohydrate"};

constexpr std::array<Material, 4> kPharmaceuticals{{
    {"acetylsalicylic acid", kAspirinNames, 1.0, kAcetylsalicylicAcid},
    {"paracetamol", kParacetamolNames, 0.9, kParacetamol},
    {"caffeine", {}, 1.0, kCaffeine},
    {"lactose", kLactoseNames, 0.9, kLactose},
}};

}  // namespace

std::span<const Material> Pharmaceuticals() {
  return kPharmaceuticals;
}

}  // namespace veritane::simulator
