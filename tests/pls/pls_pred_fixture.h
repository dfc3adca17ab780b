// A PLSPred on a scripted library.
#pragma once

#include "pls/pls_pred.h"
#include "tests/pls/scripted_library.h"
#include "tests/support/errors.h"
#include "tests/support/noting_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace veritane::pls {

class PLSPredTest : public ::testing::Test {
protected:
  void Load() { pls_->LoadCalFile("C:\\gas.cal"); }
  // Brings the object to where every item can be read.
  void Predict() {
    Load();
    ASSERT_EQ(pls_->LoadSpcDiskFile("C:\\a.spc"), 0);
    ASSERT_EQ(pls_->PlsIqPredic(1), 0);
    library_.Calls();
  }
  // Brings it to where the calibration was read and nothing predicted.
  void Read() {
    Load();
    ASSERT_EQ(pls_->ReadCalFile(1), 0);
    library_.Calls();
  }
  // 0 when there is a prediction, -2 when there is none.
  std::int32_t Predicted() {
    double value = 0;
    library_.items["ffp"] = {1};
    return pls_->GetFfp(value);
  }

  ScriptedLibrary library_;
  tests::NotingScreen screen_;
  platform::Desktop desktop_{screen_};
  std::unique_ptr<PLSPred> pls_ = std::make_unique<PLSPred>(library_, desktop_);
};

}  // namespace veritane::pls
