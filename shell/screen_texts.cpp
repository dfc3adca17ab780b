// Captions by number.
#include "shell/screen_texts.h"

#include "shell/state/string_table.h"

namespace veritane::shell {

namespace {

using state::Text;

void LoadDialogTexts(Dialogs& dialogs) {
  acquisition::FrmCollectStd& standard = dialogs.frmCollectStd;
  standard.lblProductID.SetCaption(Text(16));
  standard.lblCollectMethod.SetCaption(Text(17));
  standard.lblAlgorithm.SetCaption(Text(18));
  standard.cmdScan.SetCaption(Text(19));
  standard.cmdNoScanStandardNow.SetCaption(Text(20));
  standard.SetCaption(Text(21));

  acquisition::FrmNullRegion& null_region = dialogs.frmNullRegion;
  null_region.SetCaption(Text(22));
  null_region.lblNullStart.SetCaption(Text(23));
  null_region.lblNullEnd.SetCaption(Text(24));
  null_region.fraAddNullRegion.SetCaption(Text(25));
  null_region.cmdAddNullRegion.SetCaption(Text(26));
  null_region.cmdDeleteNullRegion.SetCaption(Text(27));
  null_region.cmdDone.SetCaption(Text(28));

  dialogs.frmStatus.SetCaption(Text(29));
  dialogs.frmSelectSpectrum.SetCaption(Text(30));

  acquisition::FrmSelectMethod& method = dialogs.frmSelectMethod;
  method.SetCaption(Text(31));
  method.lblSelectMethod.SetCaption(Text(32));
  method.cmdSelectMethodCancel.SetCaption(Text(33));
  method.cmdSelectMethodOK.SetCaption(Text(34));

  identification::FrmSamp& sample = dialogs.frmSamp;
  sample.SetCaption(Text(35));
  sample.lblProductID.SetCaption(Text(36));
  sample.cmdProductIDOkay.SetCaption(Text(37));
  sample.cmdSampleCancelled.SetCaption(Text(38));

  acquisition::FrmPrompts& prompts = dialogs.frmPrompts;
  prompts.SetCaption(Text(39));
  prompts.lblBackgroundPrompt.SetCaption(Text(40));
  prompts.lblSamplePrompt.SetCaption(Text(41));
  prompts.cmdOK.SetCaption(Text(42));

  FrmPassword& password = dialogs.frmPassword;
  password.SetCaption(Text(43));
  password.lblPassword.SetCaption(Text(44));
  password.cmdPasswordOK.SetCaption(Text(45));

  acquisition::FrmParse& parse = dialogs.frmParse;
  parse.SetCaption(Text(46));
  parse.lblInstruction.SetCaption(Text(47));
  parse.cmdOK.SetCaption(Text(48));
}

void LoadSupervisorTexts(MainControls& main) {
  constexpr int kFirstTabText = 52;
  main.fraSupervisorMode.SetCaption(Text(50));
  main.cmdMainMenu.SetCaption(Text(51));
  for (int page = 0; page < kTabCount; ++page) main.SSTab1.SetPageCaption(page, Text(kFirstTabText + page));
  main.fraPassword.SetCaption(Text(59));
  main.optNoPassword.SetCaption(Text(60));
  main.optPassword.SetCaption(Text(61));
  main.fraBackground.SetCaption(Text(62));
  main.optManualBackground.SetCaption(Text(63));
  main.optBackInterval.SetCaption(Text(64));
  main.lblHours.SetCaption(Text(65));
  main.optBackBeforeSample.SetCaption(Text(66));
  main.cmdBack.SetCaption(Text(67));
  main.fraMethods.SetCaption(Text(68));
  main.lblMethods.SetCaption(Text(69));
  main.lblNull.SetCaption(Text(70));
  main.cmdAddMeth.SetCaption(Text(71));
  main.cmdDeleteMethod.SetCaption(Text(72));
  main.cmdNullRegions.SetCaption(Text(73));
  main.fraCurrentSelection.SetCaption(Text(74));
  main.lblProductID.SetCaption(Text(75));
  main.lblCollectMethod.SetCaption(Text(76));
  main.lblAlgorithm.SetCaption(Text(77));
  main.cmdChooseCalFile.SetCaption(Text(78));
  main.cmdDel.SetCaption(Text(79));
  main.cmdCollectStdNow.SetCaption(Text(80));
  main.lblThreshold.SetCaption(Text(81));
  main.cmdParse.SetCaption(Text(82));
  main.fraReprocess.SetCaption(Text(83));
  main.cmdStandard.SetCaption(Text(84));
  main.cmdSamp.SetCaption(Text(85));
  main.cmdNow.SetCaption(Text(86));
  main.cmdExpertMode.SetCaption(Text(87));
}

void LoadMainTexts(MainControls& main) {
  main.fraSpectrum.SetCaption(Text(88));
  main.cmdResetLimits.SetCaption(Text(89));
  main.cmdPrint.SetCaption(Text(90));
  main.cmdScreenCopy.SetCaption(Text(91));
  main.cmdBacktoMainMenu.SetCaption(Text(92));
  main.fraMainMenu.SetCaption(Text(93));
  main.cmdSample.SetCaption(Text(94));
  main.cmdSupervisor.SetCaption(Text(95));
  main.cmdExit.SetCaption(Text(96));
}

}  // namespace

Dialogs::Dialogs(platform::Desktop& desktop, std::function<std::vector<std::string>()> product_ids,
                 std::function<std::string()> operator_name, pls::PredictionSurroundings prediction)
    : frmCollectStd(desktop),
      frmNullRegion(desktop),
      frmStatus(desktop),
      frmSelectSpectrum(desktop),
      frmSelectMethod(desktop),
      frmSamp(desktop, std::move(product_ids), std::move(operator_name)),
      frmPrompts(desktop),
      frmPassword(desktop),
      frmParse(desktop),
      frmResults(desktop),
      mainForm(desktop, std::move(prediction)) {}

void LoadScreenTexts(Dialogs& dialogs, MainControls& main) {
  LoadDialogTexts(dialogs);
  main.SetCaption(Text(49));
  LoadSupervisorTexts(main);
  LoadMainTexts(main);
}

}  // namespace veritane::shell
