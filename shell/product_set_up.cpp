// The tabs on which a supervisor sets up collect methods and products.
#include "acquisition/additional_file.h"
#include "acquisition/pending_product.h"
#include "acquisition/product_key.h"
#include "acquisition/standard_collection.h"
#include "shell/frm_veritane.h"

namespace veritane::shell {

void FrmVeritane::ConnectSetUpHandlers() {
  lstMeths.OnClick = [this] { lstMeths_Click(); };
  cmdAddMeth.OnClick = [this] { cmdAddMeth_Click(); };
  cmdDeleteMethod.OnClick = [this] { cmdDeleteMethod_Click(); };
  cmdNullRegions.OnClick = [this] { cmdNullRegions_Click(); };
  grid.OnRowColChange = [this] { grid_RowColChange(); };
  cmbCollectMethod.OnClick = [this] { cmbCollectMethod_Click(); };
  cmbAlgorithm.OnClick = [this] { cmbAlgorithm_Click(); };
  cmdChooseCalFile.OnClick = [this] { cmdChooseCalFile_Click(); };
  cmdDel.OnClick = [this] { cmdDel_Click(); };
  cmdCollectStdNow.OnClick = [this] { cmdCollectStdNow_Click(); };
  cmdParse.OnClick = [this] { cmdParse_Click(); };
  dialogs_.frmParse.Define = [this](const std::string& example, const std::string& part) {
    acquisition::DefineProductKey(machine_.files, machine_.folders, state_.folderSet, example, part);
  };
  dialogs_.frmCollectStd.WhyNotAProduct = [this](const std::string& product_id) {
    return acquisition::WhyNotAProduct(machine_.files, state_, product_id);
  };
  dialogs_.frmCollectStd.ChooseFile = [this](const std::string& algorithm) {
    return acquisition::ChooseAdditionalFile(Screen(), state_.folders, algorithm);
  };
  dialogs_.frmParse.Reset = [this] {
    acquisition::DeleteProductKeyDefinition(machine_.files, machine_.folders, state_.folderSet);
  };
}

void FrmVeritane::lstMeths_Click() {
  methods_.ShowNullRegions();
}

void FrmVeritane::cmdAddMeth_Click() {
  methods_.AddMethod();
}

void FrmVeritane::cmdDeleteMethod_Click() {
  methods_.DeleteMethod();
}

void FrmVeritane::cmdNullRegions_Click() {
  methods_.EditNullRegions();
}

void FrmVeritane::grid_RowColChange() {
  products_.ShowCurrentRow();
}

void FrmVeritane::cmbCollectMethod_Click() {
  products_.ChangeCollectMethod();
}

void FrmVeritane::cmbAlgorithm_Click() {
  products_.ChangeAlgorithm();
}

void FrmVeritane::cmdChooseCalFile_Click() {
  products_.ChooseFile();
}

void FrmVeritane::cmdDel_Click() {
  products_.DeleteProduct();
}

// Collects the Standard of a new product. What was changed in the grid is saved first, because the table is
// read anew afterwards.
void FrmVeritane::cmdCollectStdNow_Click() {
  if (!products_.SaveChanges()) return;
  SettlePendingProduct();
  LoadMethods();
  acquisition::StandardCollection collection(bench_, dialogs_.frmCollectStd);
  if (collection.Run()) products_.Load();
}

void FrmVeritane::SettlePendingProduct() {
  if (acquisition::SettlePendingProduct(bench_)) products_.Load();
}

void FrmVeritane::cmdParse_Click() {
  dialogs_.frmParse.ShowModal();
}

}  // namespace veritane::shell
