// A measuring device that delivers what a test has put into its queue, and keeps what it was asked.
#pragma once

#include "simulator/measuring.h"

#include <deque>
#include <utility>
#include <vector>

namespace veritane::simulator {

class QueuedDevice : public MeasuringDevice {
public:
  std::deque<Measurement> measurements;
  std::deque<int> alignments;
  std::vector<CollectRequest> requests;

  void Queue(std::vector<double> values, std::string name = "") {
    Measurement measurement;
    measurement.spacing = 2;
    measurement.values = {400, std::move(values)};
    measurement.name = std::move(name);
    measurements.push_back(std::move(measurement));
  }
  void QueueError(int error) {
    measurements.emplace_back();
    measurements.back().error = error;
  }

  Measurement Collect(const CollectRequest& request) override {
    requests.push_back(request);
    Measurement next = std::move(measurements.at(0));
    measurements.pop_front();
    return next;
  }
  int Align(const CollectRequest& request) override {
    requests.push_back(request);
    const int next = alignments.at(0);
    alignments.pop_front();
    return next;
  }
};

}  // namespace veritane::simulator
