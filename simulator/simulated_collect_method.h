// A collect method as the program loaded and set it.
#pragma once

#include "acquisition/spectrometer_app.h"
#include "platform/file_system.h"
#include "simulator/call_log.h"
#include "simulator/measuring.h"

#include <memory>
#include <string>

namespace veritane::simulator {

class SimulatedCollectMethod : public acquisition::CollectMethod {
public:
  SimulatedCollectMethod(std::string path, std::string text, std::shared_ptr<CallLog> calls);

  // Options and parameters of a scan say nothing to the devices here; they are noted.
  void SetCollectOption(const std::string& option) override;
  void SetScanParameter(double value) override;
  void SetSubParameter(double value) override;
  void SetBackgroundFile(const std::string& spectrum) override;

  // The request with the background spectrum read now, or with the reason why there is none.
  CollectRequest ToRequest(const platform::FileSystem& files) const;

private:
  CollectRequest request_;
  std::shared_ptr<CallLog> calls_;
};

}  // namespace veritane::simulator
