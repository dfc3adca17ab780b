// Collecting a Standard step by step.
#include "acquisition/standard_collection.h"

#include "acquisition/additional_file.h"
#include "acquisition/background.h"
#include "acquisition/pending_product.h"
#include "acquisition/product_key.h"
#include "acquisition/prompts.h"
#include "acquisition/spectrum_drawing.h"
#include "platform/run_time_error.h"
#include "platform/windows_path.h"
#include "shell/state/messages.h"

#include <algorithm>

namespace veritane::acquisition {

using platform::MessageIcon;
using state::Text;
using state::TextId;

namespace {

// A Product ID that holds no key by the parser is its own key.
std::string KeyOf(const platform::FileSystem& files, const state::DataFolders& folders,
                  const std::string& product_id) {
  const std::string key = ProductKey(files, folders, product_id);
  return key.empty() ? product_id : key;
}

// The numbered file of another product: deleting a product of that name would delete its spectra.
bool IsNumberedFile(const platform::FileSystem& files, const state::ProgramState& state,
                    const std::string& key) {
  const std::size_t dash = key.rfind('-');
  if (dash == std::string::npos || !files.FileExists(state.folders.InSamples(key + ".bsp"))) return false;
  const std::string number = key.substr(dash + 1);
  const std::string table = ProductTablePath(state);
  const std::string bytes = files.ReadBytes(table);
  return !number.empty() && number.find_first_not_of("0123456789") == std::string::npos &&
         FindProduct(bytes, key.substr(0, dash), table) && !FindProduct(bytes, key, table);
}

}  // namespace

std::string WhyNotAProduct(const platform::FileSystem& files, const state::ProgramState& state,
                           const std::string& product_id) {
  const std::string key = KeyOf(files, state.folders, product_id);
  if (const std::string why = platform::WhyNotAFileName(key); !why.empty()) {
    return Text(TextId::kCannotNameAProduct, {key, why});
  }
  if (key.find(',') != std::string::npos) return Text(TextId::kProductIdHoldsComma);
  if (key.front() == ' ') return Text(TextId::kProductIdBeginsWithBlank);
  if (IsNumberedFile(files, state, key)) return Text(TextId::kNameOfNumberedFile, {key});
  // The Standard would be written over the background of that method.
  const bool is_background =
      std::any_of(state.methodShortNames.begin(), state.methodShortNames.end(), [&](const std::string& name) {
        return platform::UpperCase(BackgroundPath(state.folders, name)) ==
               platform::UpperCase(state.folders.InStandards(key + ".bsp"));
      });
  return is_background ? Text(TextId::kNameOfBackground, {key}) : "";
}

StandardCollection::StandardCollection(Bench& bench, FrmCollectStd& frm_collect_std)
    : bench_(bench), state_(bench.state), session_(bench.session), frm_collect_std_(frm_collect_std) {}

bool StandardCollection::Run() {
  // A table that cannot be read could not take the product either; better to hear of it before measuring.
  ReadProductTable(bench_.machine.files.ReadBytes(ProductTablePath(state_)), ProductTablePath(state_));
  frm_collect_std_.ShowModal();
  if (frm_collect_std_.cancelled || bench_.desktop.Ended()) return false;
  NoteProduct();
  if (bench_.machine.files.FileExists(StandardPath())) {
    state::Notice(bench_.desktop, TextId::kStandardExists, MessageIcon::kCritical);
    return false;
  }
  const DrivenApplication driven(bench_);
  const Prompts prompts = LoadPrompts(bench_.machine.files, state_.folders, state_.clmName);
  const auto or_general = [](const std::string& prompt, TextId general) {
    return prompt.empty() ? Text(general) : prompt;
  };
  if (!CollectNewBackground(or_general(prompts.background, TextId::kDefaultBackgroundPrompt)) ||
      !CollectStandard(or_general(prompts.sample, TextId::kDefaultSamplePrompt))) {
    return false;
  }
  EnterInTable();
  return true;
}

std::string StandardCollection::StandardPath() const {
  return state_.folders.InStandards(state_.prod + ".bsp");
}

void StandardCollection::NoteProduct() {
  state_.prod = KeyOf(bench_.machine.files, state_.folders, frm_collect_std_.txtProductID.Text());
  state_.algorithm = frm_collect_std_.cmbAlg.Text();
  state_.calfilename =
      NeedsAdditionalFile(state_.algorithm) ? frm_collect_std_.txtCalFileName.Text() : std::string();
  state_.clmName = frm_collect_std_.cmbmth.SelectedItem();
  state_.clmFile = state_.folders.InStandards(state_.clmName + ".clm");
  state_.BackGroundName = BackgroundPath(state_.folders, state_.clmName);
}

bool StandardCollection::CollectNewBackground(const std::string& prompt) {
  AnnounceBackground(bench_.desktop, prompt);
  return CollectBackground(bench_) == CollectOutcome::kCollected;
}

bool StandardCollection::CollectStandard(const std::string& prompt) {
  const bool is_demonstration = bench_.state.options.demoMode != 0;
  PrepareMeasurement(bench_, state_.clmFile, state_.BackGroundName);
  OpenedDocuments opened;
  if (is_demonstration) {
    opened.Open(session_, state_.folders.InStandards(DemonstrationFile(state_.algorithm)));
  } else {
    opened.Create(session_, StandardPath());
  }
  AnnounceSample(bench_.desktop, prompt);
  if (CollectIntoDocument(bench_, state_.BackGroundName) != CollectOutcome::kCollected) {
    opened.ReleaseLast();
    return false;
  }
  ShowStandard();
  FileStandard(opened);
  // The supervisor sees what was measured before the table comes back.
  state::ShowPanel(bench_.panel, bench_.panel.fraSpectrum);
  state::Notice(bench_.desktop, TextId::kStandardDone, MessageIcon::kExclamation);
  state::ShowPanel(bench_.panel, bench_.panel.fraSupervisorMode);
  return true;
}

void StandardCollection::FileStandard(OpenedDocuments& opened) {
  const bool is_demonstration = state_.options.demoMode != 0;
  try {
    NotePendingProduct(bench_.machine.files, state_.folders, NewProduct());
    if (is_demonstration) session_.CurrentDocument->SaveDocumentAs(StandardPath());
    opened.ReleaseLast()->CloseDocument(!is_demonstration);
  } catch (const platform::RunTimeError& error) {
    throw platform::RunTimeError(error.Number(),
                                 Text(TextId::kStandardNotFiled, {error.what(), StandardPath()}));
  }
}

void StandardCollection::ShowStandard() {
  {
    const StatusShown status(bench_, Text(TextId::kStandardStatus));
    state_.Ref = session_.ReadSpectrum();
    DrawSpectrum(bench_.panel.chart, state_.Ref, Text(TextId::kStandardStatus));
  }
  // The Standard is good even where its peaks or predicted values cannot be shown.
  bench_.desktop.Perform([this] { bench_.MarkStandard(); });
  bench_.panel.txtResults.SetText("");
  bench_.panel.lblResult.SetCaption("");
  bench_.panel.fraSpectrum.SetCaption(Text(TextId::kStandardCaption) + state_.prod);
}

Product StandardCollection::NewProduct() const {
  return {state_.prod, state_.clmName, state_.algorithm, state_.calfilename};
}

void StandardCollection::EnterInTable() {
  platform::FileSystem& files = bench_.machine.files;
  std::vector<Product> products;
  try {
    products = AppendProduct(files, ProductTablePath(state_), NewProduct());
  } catch (const platform::RunTimeError& error) {
    throw platform::RunTimeError(error.Number(),
                                 Text(TextId::kStandardNotInTable, {error.what(), StandardPath()}));
  }
  // The product is complete, whatever becomes of the note.
  bench_.desktop.Perform([&] { ForgetPendingProduct(files, state_.folders); });
  const auto same = [&](const Product& product) {
    return platform::UpperCase(product.productId) == platform::UpperCase(state_.prod);
  };
  if (std::count_if(products.begin(), products.end(), same) > 1) {
    state::PlainNotice(bench_.desktop, Text(TextId::kEarlierRow, {state_.prod}));
  }
}

}  // namespace veritane::acquisition
