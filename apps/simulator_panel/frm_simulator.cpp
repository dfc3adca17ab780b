// The panel's rules: every choice is written at once, and what others write appears.
#include "apps/simulator_panel/frm_simulator.h"

#include "acquisition/spectrometer_app.h"
#include "apps/simulator_panel/panel_entries.h"
#include "platform/desktop.h"
#include "platform/number_text.h"
#include "platform/run_time_error.h"
#include "shell/state/data_folders.h"
#include "simulator/materials.h"

namespace veritane::simulator_panel {

using simulator::CompartmentState;

namespace {

// Samples before Standards: of two files of the same second the sample was measured later. None as long as
// the machine has no folder for data.
NewestSpectrum::Folders SpectrumFolders(const platform::Machine& machine) {
  return [&shell = machine.folders,
          set = state::ChooseFolderSet(machine.registry)]() -> std::vector<std::string> {
    const std::string data = state::DataFolderBelow(shell.CommonApplicationData(false));
    if (data.empty()) return {};
    return {data + set.sampFolder, data + set.stdsFolder};
  };
}

}  // namespace

FrmSimulator::FrmSimulator(platform::Desktop& desktop, const platform::Machine& machine,
                           const std::string& compartment_path)
    : Form(desktop, "frmSimulator"),
      machine_(machine),
      compartment_(machine.files, compartment_path),
      newest_(machine.files, machine.clock, SpectrumFolders(machine)) {
  SetUpCaptions();
  lblFile.SetCaption(compartment_path);
  txtFaultCount.SetText("1");
  txtSeed.SetText("1");
  for (const simulator::Material& material : simulator::Materials()) {
    lstMaterials.Add(std::string(material.key));
  }
  platform::OptionButton::Group({&optTransmission, &optAtr, &optOtherAccessory});
  platform::OptionButton::Group({&optNoFault, &optWrongAccessory, &optOtherFault});
  platform::OptionButton::Group({&optRandomSeed, &optFixedSeed});
  ConnectHandlers();
}

void FrmSimulator::ConnectHandlers() {
  const auto by_hand = [this](void (FrmSimulator::*handler)()) {
    return [this, handler] {
      if (showing_) return;
      (this->*handler)();
      EnableBoxes();
      ShowState();
    };
  };
  lstMaterials.OnClick = by_hand(&FrmSimulator::lstMaterials_Click);
  txtSample.OnChange = by_hand(&FrmSimulator::txtSample_Change);
  cmdChooseFile.OnClick = by_hand(&FrmSimulator::cmdChooseFile_Click);
  optTransmission.OnClick = by_hand(&FrmSimulator::optTransmission_Click);
  optAtr.OnClick = by_hand(&FrmSimulator::optAtr_Click);
  optOtherAccessory.OnClick = by_hand(&FrmSimulator::optOtherAccessory_Click);
  txtAccessory.OnChange = by_hand(&FrmSimulator::txtAccessory_Change);
  for (platform::OptionButton* option : {&optNoFault, &optWrongAccessory, &optOtherFault}) {
    option->OnClick = by_hand(&FrmSimulator::optFault_Click);
  }
  txtFault.OnChange = by_hand(&FrmSimulator::txtFault_Change);
  txtFaultCount.OnChange = by_hand(&FrmSimulator::txtFault_Change);
  txtNoise.OnChange = by_hand(&FrmSimulator::txtNoise_Change);
  txtDuration.OnChange = by_hand(&FrmSimulator::txtDuration_Change);
  optRandomSeed.OnClick = by_hand(&FrmSimulator::optRandomSeed_Click);
  optFixedSeed.OnClick = by_hand(&FrmSimulator::optFixedSeed_Click);
  txtSeed.OnChange = by_hand(&FrmSimulator::txtSeed_Change);
}

void FrmSimulator::Form_Load() {
  ReadFile();
  // Nothing is shown yet, so that everything counts as different.
  const Showing showing(showing_);
  shown_ = state_;
  ShowSample();
  ShowAccessory();
  ShowFault();
  txtNoise.SetText(platform::PlainNumberText(state_.noise));
  txtDuration.SetText(std::to_string(state_.duration));
  ShowSeed();
  EnableBoxes();
  ShowFaultsLeft();
  newest_.Look();
  ShowSpectrum();
  Show();
}

void FrmSimulator::Form_QueryUnload() {
  Hide();
  Screen().End(0);
}

void FrmSimulator::Refresh() {
  for (TypedEntry* entry : {&sample_, &accessory_, &fault_, &fault_count_, &noise_, &duration_, &seed_}) {
    entry->Tick();
  }
  ReadFile();
  ShowState();
  if (newest_.Look()) ShowSpectrum();
}

void FrmSimulator::ReadFile() {
  try {
    state_ = compartment_.Read();
    lblProblem.SetCaption("");
  } catch (const platform::RunTimeError& error) {
    lblProblem.SetCaption("The compartment's file cannot be read. The next change made here replaces it.\n" +
                          std::string(error.what()));
  }
}

void FrmSimulator::Enter(TypedEntry& entry, const std::function<Change()>& read) {
  try {
    const Change change = read();
    // What others have changed meanwhile stays. A damaged file is replaced.
    ReadFile();
    CompartmentState next = state_;
    change(next);
    compartment_.Write(next);
    state_ = next;
    lblProblem.SetCaption("");
    change(shown_);
    entry.Accept();
  } catch (const RefusedEntry& refused) {
    entry.Refuse(refused.what());
  } catch (const platform::RunTimeError& error) {
    entry.Refuse("The file could not be written (" + std::string(error.what()) + ").");
  }
}

void FrmSimulator::lstMaterials_Click() {
  {
    const Showing showing(showing_);
    txtSample.SetText(lstMaterials.SelectedItem());
  }
  txtSample_Change();
}

void FrmSimulator::txtSample_Change() {
  Enter(sample_, [this]() -> Change {
    return [sample = SampleEntry(txtSample.Text(), machine_.files)](CompartmentState& state) {
      state.sample = sample;
    };
  });
  MarkMaterial();
}

void FrmSimulator::cmdChooseFile_Click() {
  const auto path =
      Screen().ChooseFile({.title = "Choose a spectrum file",
                           .filter = "Spectrum files (*.jdx;*.dx;*.jcm;*.bsp)|*.jdx;*.dx;*.jcm;*.bsp",
                           .folder = ""});
  if (!path) return;
  {
    const Showing showing(showing_);
    txtSample.SetText(*path);
  }
  txtSample_Change();
}

void FrmSimulator::optTransmission_Click() {
  Enter(accessory_,
        [] { return [](CompartmentState& state) { state.accessory = simulator::kTransmissionAccessory; }; });
}

void FrmSimulator::optAtr_Click() {
  Enter(accessory_,
        [] { return [](CompartmentState& state) { state.accessory = simulator::kAtrAccessory; }; });
}

void FrmSimulator::optOtherAccessory_Click() {
  txtAccessory_Change();
}

void FrmSimulator::txtAccessory_Change() {
  if (!optOtherAccessory.Checked()) return;
  Enter(accessory_, [this]() -> Change {
    return [accessory = AccessoryEntry(txtAccessory.Text())](CompartmentState& state) {
      state.accessory = accessory;
    };
  });
}

// Number and count are one setting: each is written with the other.
void FrmSimulator::optFault_Click() {
  fault_.Release();
  fault_count_.Release();
  if (optNoFault.Checked()) {
    Enter(fault_, [] {
      return [](CompartmentState& state) {
        state.fault = 0;
        state.faultCount = 0;
      };
    });
    return;
  }
  int count = 0;
  try {
    count = FaultCountEntry(txtFaultCount.Text());
  } catch (const RefusedEntry& refused) {
    fault_count_.Refuse(refused.what());
    return;
  }
  Enter(fault_, [&]() -> Change {
    const std::int32_t fault =
        optWrongAccessory.Checked() ? acquisition::kWrongAccessory : FaultEntry(txtFault.Text());
    return [fault, count](CompartmentState& state) {
      state.fault = fault;
      state.faultCount = count;
    };
  });
  fault_count_.Accept();
}

void FrmSimulator::txtFault_Change() {
  if (!optNoFault.Checked()) optFault_Click();
}

void FrmSimulator::txtNoise_Change() {
  Enter(noise_, [this]() -> Change {
    return [noise = NoiseEntry(txtNoise.Text())](CompartmentState& state) { state.noise = noise; };
  });
}

void FrmSimulator::txtDuration_Change() {
  Enter(duration_, [this]() -> Change {
    return [time = DurationEntry(txtDuration.Text())](CompartmentState& state) { state.duration = time; };
  });
}

void FrmSimulator::optRandomSeed_Click() {
  Enter(seed_, [] { return [](CompartmentState& state) { state.seed.reset(); }; });
}

void FrmSimulator::optFixedSeed_Click() {
  txtSeed_Change();
}

void FrmSimulator::txtSeed_Change() {
  if (!optFixedSeed.Checked()) return;
  Enter(seed_, [this]() -> Change {
    return [seed = SeedEntry(txtSeed.Text())](CompartmentState& state) { state.seed = seed; };
  });
}

}  // namespace veritane::simulator_panel
