// Band tables of liquids as capillary films.
#include "simulator/materials_tables.h"

#include <array>

namespace veritane::simulator {

namespace {

// C-O stretch 1046 and 1089, C-C-O 880, hydrogen-bonded OH 3330.
constexpr Band kEthanol[] = {
    {3490, .14, 180, .1}, {3330, .62, 220, .1}, {3210, .16, 180, .1}, {2973, .72, 20},     {2928, .34, 30},
    {2882, .36, 30},      {1930, .01, 60, .3},  {1650, .03, 90, .3},  {1480, .10, 24},     {1454, .20, 22},
    {1418, .20, 70, .3},  {1380, .26, 14},      {1329, .20, 50, .3},  {1274, .14, 22},     {1089, .58, 18},
    {1046, 1.0, 18},      {880, .50, 12},       {803, .03, 14},       {650, .24, 190, .2}, {434, .08, 24}};

// OH stretch around 3400 with its components, bend 1643, bend with libration 2128, libration around 690.
constexpr Band kWater[] = {{3615, .12, 100, .1}, {3540, .34, 150, .1}, {3430, .58, 210, .1},
                           {3330, .20, 190, .1}, {3250, .60, 220, .1}, {3060, .09, 220, .1},
                           {2128, .05, 260, .1}, {1690, .04, 90, .2},  {1643, .26, 72, .6},
                           {1580, .03, 110, .2}, {850, .08, 200, .1},  {745, .20, 240, .1},
                           {650, .24, 260, .1},  {540, .22, 260, .1},  {430, .18, 240, .1}};

constexpr std::string_view kEthanolNames[] = {"ethyl alcohol"};
constexpr std::string_view kWaterNames[] = {"h2o"};

constexpr std::array<Material, 2> kLiquids{{
    {"ethanol", kEthanolNames, 1.0, kEthanol},
    {"water", kWaterNames, 0.9, kWater},
}};

}  // namespace

std::span<const Material> Liquids() {
  return kLiquids;
}

}  // namespace veritane::simulator
