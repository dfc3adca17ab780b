// Tables from item names to their values.
#include "plslibrary/items.h"

#include <algorithm>
#include <utility>

namespace veritane::plslibrary {

namespace {

using Values = std::vector<double>;

void Append(Values& values, const Eigen::VectorXd& more) {
  values.insert(values.end(), more.begin(), more.end());
}

void Append(Values& values, const Limits& limits) {
  values.push_back(limits.high);
  values.push_back(limits.low);
}

Values Codes(const std::string& utf8) {
  Values codes;
  // What cannot be single bytes never got into the calibration.
  for (const char code : SingleByteText(utf8).value_or("")) codes.push_back(static_cast<unsigned char>(code));
  return codes;
}

Values Names(const Calibration& calibration) {
  Values names;
  for (const FactorSet& set : calibration.sets) {
    Values codes = Codes(set.constituent);
    codes.resize(kLongestName, 0);
    names.insert(names.end(), codes.begin(), codes.end());
  }
  return names;
}

Values Bands(const Calibration& calibration) {
  Values records;
  for (const Band& band : calibration.bands) {
    const Eigen::Index last = band.first + band.points - 1;
    records.insert(records.end(), {calibration.axis.XOf(band.first), calibration.axis.XOf(last),
                                   static_cast<double>(band.first + 1), static_cast<double>(last + 1),
                                   static_cast<double>(band.points)});
  }
  return records;
}

// What `add` appends for each factor set, one after the other.
template <typename Add>
Values OfEachSet(const Calibration& calibration, Add add) {
  Values values;
  for (const FactorSet& set : calibration.sets) add(values, set);
  return values;
}

template <typename Add>
Values OfEachSet(const Prediction& prediction, Add add) {
  Values values;
  for (const SetPrediction& set : prediction.sets) add(values, set);
  return values;
}

Values FRatios(const Calibration& calibration) {
  return OfEachSet(calibration, [&](Values& values, const FactorSet& set) {
    const FRatioPair pair = FRatioOf(calibration, set);
    values.insert(values.end(), {pair.samples, pair.residualSum});
  });
}

using OfCalibration = Values (*)(const Calibration&);
using OfPrediction = Values (*)(const PredictedSpectrum&);

constexpr std::pair<std::string_view, OfCalibration> kCalibrationItems[] = {
    {"memo", [](const Calibration& c) { return Codes(c.memo); }},
    {"constituent_names", Names},
    {"ncomp", [](const Calibration& c) { return Values{static_cast<double>(c.sets.size())}; }},
    {"fsets", [](const Calibration& c) { return Values{static_cast<double>(c.sets.size())}; }},
    {"calfac",
     [](const Calibration& c) {
       return OfEachSet(c, [](Values& values, const FactorSet& set) {
         values.push_back(static_cast<double>(set.Factors()));
       });
     }},
    {"bands", Bands},
    {"flags",
     [](const Calibration& c) {
       return Values{1, static_cast<double>(c.samples), static_cast<double>(c.groups)};
     }},
    {"prep",
     [](const Calibration& c) {
       return Values{1, c.scaled ? 1.0 : 0.0};
     }},
    {"bsln", [](const Calibration&) { return Values{0}; }},
    {"thick", [](const Calibration&) { return Values{0}; }},
};

constexpr std::pair<std::string_view, OfPrediction> kPredictionItems[] = {
    {"concentration",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.prediction, [](Values& values, const SetPrediction& set) {
         values.push_back(set.concentration);
       });
     }},
    {"residual",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.prediction,
                        [](Values& values, const SetPrediction& set) { values.push_back(set.residual); });
     }},
    {"distance",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.prediction,
                        [](Values& values, const SetPrediction& set) { values.push_back(set.distance); });
     }},
    {"scores",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.prediction,
                        [](Values& values, const SetPrediction& set) { Append(values, set.scores); });
     }},
    {"resid_spectrum",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.prediction, [](Values& values, const SetPrediction& set) {
         Append(values, set.residualSpectrum);
       });
     }},
    {"proc_spectrum",
     [](const PredictedSpectrum& p) {
       return Values(p.prediction.processed.begin(), p.prediction.processed.end());
     }},
    {"source", [](const PredictedSpectrum& p) { return Values(p.source.begin(), p.source.end()); }},
    {"ffp", [](const PredictedSpectrum& p) { return Values{p.axis.firstX}; }},
    {"flp", [](const PredictedSpectrum& p) { return Values{p.axis.lastX}; }},
    {"npts", [](const PredictedSpectrum& p) { return Values{static_cast<double>(p.axis.points)}; }},
    {"xtype", [](const PredictedSpectrum& p) { return Values{static_cast<double>(p.axis.xType)}; }},
    {"ytype", [](const PredictedSpectrum& p) { return Values{static_cast<double>(p.axis.yType)}; }},
    {"conc_limits",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.calibration, [](Values& values, const FactorSet& set) {
         Append(values, set.concentrationLimits);
       });
     }},
    {"score_limits",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.calibration, [](Values& values, const FactorSet& set) {
         for (const Limits& limits : set.scoreLimits) Append(values, limits);
       });
     }},
    {"resid_limits",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.calibration,
                        [](Values& values, const FactorSet& set) { Append(values, set.residualLimits); });
     }},
    {"dist_limits",
     [](const PredictedSpectrum& p) {
       return OfEachSet(p.calibration,
                        [](Values& values, const FactorSet& set) { Append(values, set.distanceLimits); });
     }},
    {"fratio", [](const PredictedSpectrum& p) { return FRatios(p.calibration); }},
};

template <typename Table, typename Source>
std::optional<Values> ItemOf(const Table& table, const Source& source, std::string_view name) {
  for (const auto& [item, values] : table) {
    if (item == name) return values(source);
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::vector<double>> CalibrationItem(const Calibration& calibration, std::string_view name) {
  return ItemOf(kCalibrationItems, calibration, name);
}

std::optional<std::vector<double>> PredictionItem(const PredictedSpectrum& predicted, std::string_view name) {
  return ItemOf(kPredictionItems, predicted, name);
}

}  // namespace veritane::plslibrary
