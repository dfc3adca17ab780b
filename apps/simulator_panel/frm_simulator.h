// The simulator panel: what lies in the simulated instrument, and the spectrum that it measured last.
#pragma once

#include "apps/simulator_panel/newest_spectrum.h"
#include "apps/simulator_panel/typed_entry.h"
#include "platform/chart.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/machine.h"
#include "simulator/compartment.h"

#include <functional>
#include <initializer_list>
#include <string>

namespace veritane::simulator_panel {

class FrmSimulator : public platform::Form {
public:
  // `compartment_path` is the Windows path of the compartment's file. The machine's parts must outlive the
  // form.
  FrmSimulator(platform::Desktop& desktop, const platform::Machine& machine,
               const std::string& compartment_path);

  platform::Label lblFile{*this, "lblFile"};
  platform::Label lblProblem{*this, "lblProblem"};

  platform::Frame fraSample{*this, "fraSample"};
  platform::Label lblMaterials{*this, "lblMaterials"};
  platform::ListBox lstMaterials{*this, "lstMaterials"};
  platform::Label lblSample{*this, "lblSample"};
  platform::TextBox txtSample{*this, "txtSample"};
  platform::Button cmdChooseFile{*this, "cmdChooseFile"};
  platform::Label lblSampleNote{*this, "lblSampleNote"};

  platform::Frame fraAccessory{*this, "fraAccessory"};
  platform::OptionButton optTransmission{*this, "optTransmission"};
  platform::OptionButton optAtr{*this, "optAtr"};
  platform::OptionButton optOtherAccessory{*this, "optOtherAccessory"};
  platform::TextBox txtAccessory{*this, "txtAccessory"};
  platform::Label lblAccessoryNote{*this, "lblAccessoryNote"};

  platform::Frame fraFault{*this, "fraFault"};
  platform::OptionButton optNoFault{*this, "optNoFault"};
  platform::OptionButton optWrongAccessory{*this, "optWrongAccessory"};
  platform::OptionButton optOtherFault{*this, "optOtherFault"};
  platform::TextBox txtFault{*this, "txtFault"};
  platform::Label lblFaultNote{*this, "lblFaultNote"};
  platform::Label lblFaultCount{*this, "lblFaultCount"};
  platform::TextBox txtFaultCount{*this, "txtFaultCount"};
  platform::Label lblFaultCountNote{*this, "lblFaultCountNote"};
  platform::Label lblFaultsLeft{*this, "lblFaultsLeft"};

  platform::Frame fraMeasurement{*this, "fraMeasurement"};
  platform::Label lblNoise{*this, "lblNoise"};
  platform::TextBox txtNoise{*this, "txtNoise"};
  platform::Label lblNoiseNote{*this, "lblNoiseNote"};
  platform::Label lblDuration{*this, "lblDuration"};
  platform::TextBox txtDuration{*this, "txtDuration"};
  platform::Label lblDurationNote{*this, "lblDurationNote"};
  platform::Label lblSeed{*this, "lblSeed"};
  platform::OptionButton optRandomSeed{*this, "optRandomSeed"};
  platform::OptionButton optFixedSeed{*this, "optFixedSeed"};
  platform::TextBox txtSeed{*this, "txtSeed"};
  platform::Label lblSeedNote{*this, "lblSeedNote"};

  platform::Frame fraSpectrum{*this, "fraSpectrum"};
  platform::Label lblSpectrum{*this, "lblSpectrum"};
  platform::Label lblSpectrumFile{*this, "lblSpectrumFile"};
  platform::Chart chtSpectrum{*this, "chtSpectrum"};

  // Shows the form.
  void Form_Load();
  // Shows what others have changed since. Called about once a second.
  void Refresh();

  void lstMaterials_Click();
  void txtSample_Change();
  void cmdChooseFile_Click();
  void optTransmission_Click();
  void optAtr_Click();
  void optOtherAccessory_Click();
  void txtAccessory_Change();
  // Any of the fault's options, and both of its boxes.
  void optFault_Click();
  void txtFault_Change();
  void txtNoise_Change();
  void txtDuration_Change();
  void optRandomSeed_Click();
  void optFixedSeed_Click();
  void txtSeed_Change();

private:
  void Form_QueryUnload() override;

  // Marks a stretch in which the program sets the controls.
  class Showing {
  public:
    explicit Showing(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~Showing() { flag_ = before_; }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

  private:
    bool& flag_;
    const bool before_;
  };

  using Change = std::function<void(simulator::CompartmentState&)>;
  // Writes the change that `read` finds in the controls, or tells beside the entry why not.
  void Enter(TypedEntry& entry, const std::function<Change()>& read);
  void ReadFile();

  void SetUpCaptions();
  void ConnectHandlers();
  // Brings the controls up to what the file says.
  void ShowState();
  void Follow(bool differs, std::initializer_list<TypedEntry*> entries, const std::string& in_force,
              const std::function<void()>& show);
  void ShowSample();
  void ShowAccessory();
  void ShowFault();
  void ShowSeed();
  void ShowFaultsLeft();
  void EnableBoxes();
  void MarkMaterial();
  void ShowSpectrum();

  const platform::Machine machine_;
  simulator::Compartment compartment_;
  NewestSpectrum newest_;
  // What the file says, and what the controls stand for.
  simulator::CompartmentState state_;
  simulator::CompartmentState shown_;
  // The program sets the controls, not the user.
  bool showing_ = false;

  TypedEntry sample_{txtSample, lblSampleNote};
  TypedEntry accessory_{txtAccessory, lblAccessoryNote};
  TypedEntry fault_{txtFault, lblFaultNote};
  TypedEntry fault_count_{txtFaultCount, lblFaultCountNote};
  TypedEntry noise_{txtNoise, lblNoiseNote};
  TypedEntry duration_{txtDuration, lblDurationNote};
  TypedEntry seed_{txtSeed, lblSeedNote};
};

}  // namespace veritane::simulator_panel
