// The program's texts by number: 16 to 96 captions, 200 to 255 messages, and from 1000 on what was added, a
// hundred a room. Leading blanks are part of a text, "&" marks the access key, "{1}" a place that is filled
// in.
#pragma once

#include "platform/text_table.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace veritane::state {

// The numbers of the texts, for the code that shows them; windows take their captions up to 96 by number.
enum class TextId : int {
  kSelectRegionToDelete = 200,
  kDefaultSamplePrompt = 202,
  kDefaultBackgroundPrompt = 203,
  kSelectClmFile = 204,
  kScanning = 205,
  kSpectrometerError = 206,
  kWarningTitle = 207,
  kBackgroundCaption = 208,
  kBackgroundDone = 209,
  kNoticeTitle = 210,
  kStandardExists = 212,
  kNewBackgroundRequired = 213,
  kClickToCollectBackground = 214,
  kStandardCaption = 215,
  kStandardDone = 216,
  kSelectMethodToDelete = 217,
  kSelectMethod = 218,
  kSpectraLimit = 219,
  kProductNotFound = 220,
  kReadyForSample = 221,
  kClickToScanSample = 222,
  kLoadingStandard = 223,
  kCalculating = 224,
  kPass = 225,
  kFail = 226,
  kMatchQualityCaption = 227,
  kMatchQuality = 229,
  kSelectStandardSpectrum = 232,
  kSelectSampleSpectrum = 233,
  kSelectBothSpectra = 234,
  kResolutionsDiffer = 235,
  kPointsDiffer = 236,
  kCannotReprocess = 237,
  kReprocessStandard = 238,
  kReprocessSample = 239,
  kPercentAlgorithm = 240,
  kEnterPassword = 241,
  kAccessDenied = 242,
  kProductIdHeader = 243,
  kCollectMethodHeader = 244,
  kAlgorithmHeader = 245,
  kCalibrating = 247,
  kVerifyPassword = 248,
  kIncorrectPassword = 249,
  kThresholdRange = 250,
  kWrongAccessory = 252,
  kOperatorName = 253,
  kEnterOperatorName = 254,
  kStandardStatus = 255,

  // Several rooms.
  kPlainNotice = 1000,
  kProgramName = 1001,
  kUnknownUser = 1002,
  kUserCannotBeTold = 1003,
  kWavenumberAxis = 1004,
  kIntensityAxis = 1005,
  kSelectCalibrationFile = 1006,

  // shell: the main window.
  kSubtitle = 1100,
  kShowPassFail = 1101,
  kPrintOptions = 1102,
  kDefaultPrinting = 1103,
  kPrintWithTemplate = 1104,
  kChooseTemplate = 1105,
  kReprocessAlgorithm = 1106,
  kNextSample = 1107,
  kVersionTitle = 1108,
  kGridColumn = 1109,
  kGridRow = 1110,

  // shell: start-up and the end.
  kNoApplicationData = 1120,
  kRunningAlready = 1121,
  kInitialMethodMissing = 1122,
  kSettingsNotSaved = 1123,
  kDataFolderUnusable = 1124,

  // shell: supervisor mode.
  kIntervalRange = 1130,
  kSelectPrintTemplate = 1131,
  kTemplateOrDefaultPrinting = 1132,
  kPrintTemplateRequired = 1133,
  kPrintTemplateMissing = 1134,
  kNoSpectrumToPredict = 1135,
  kPasswordCannotBeKept = 1136,
  kTemplateCannotBeKept = 1137,

  // acquisition: captions.
  kProductIdTip = 1200,
  kAdditionalFile = 1201,
  kChooseAdditionalFile = 1202,
  kUseFullBarcode = 1203,
  kFileNameHeader = 1204,
  kSelectPeakFile = 1205,

  // acquisition: defining a product.
  kBackIsReserved = 1210,
  kCalibrationFileRequired = 1211,
  kPeakFileRequired = 1212,
  kCollectMethodRequired = 1213,
  kCannotNameAProduct = 1214,
  kProductIdHoldsComma = 1215,
  kProductIdBeginsWithBlank = 1216,
  kNameOfBackground = 1217,
  kStandardNotInTable = 1218,
  kEarlierRow = 1219,
  kStandardWithoutRow = 1220,
  kStandardNotFiled = 1221,
  kNameOfNumberedFile = 1222,

  // acquisition: backgrounds.
  kBackgroundNotFiled = 1225,
  kBackgroundUnreadable = 1226,

  // acquisition: methods and the product table.
  kNotACollectMethod = 1230,
  kProductTableUnreadable = 1231,
  kAdditionalFileRequired = 1232,
  kDeleteProductTitle = 1233,
  kDeleteProduct = 1234,
  kNoNullRegion = 1235,
  kMeasuredNothing = 1236,
  kBackgroundIsStandard = 1237,
  kDeleteRow = 1238,
  kCannotStandInTable = 1239,

  // acquisition: the application's member names.
  kForeignObject = 1240,
  kMemberLineExpected = 1241,
  kNotInContract = 1242,
  kMemberTwice = 1243,
  kMemberNameExpected = 1244,
  kNoInstrumentAnswer = 1245,

  // acquisition: null regions.
  kNullRegionNeedsWavenumbers = 1250,

  // identification: a sample run.
  kSampleName = 1300,
  kEnterSampleName = 1301,
  kCannotNameTheProduct = 1302,
  kAlgorithmNotAvailable = 1303,
  kCollectedOtherwise = 1304,
  kStartsElsewhere = 1305,
  kFiledNotCompared = 1306,
  kFiledNotLogged = 1307,
  kFiledNotRecorded = 1308,
  kFiledNotNamed = 1309,

  // identification: what the result shows.
  kResultLine = 1320,
  kResultLineWithoutQuality = 1321,
  kStandardTrace = 1322,
  kSampleTrace = 1323,
  kPredictionFailed = 1324,
  kDepartsLeast = 1325,
  kDepartsLittle = 1326,
  kDepartsClearly = 1327,
  kDepartsMost = 1328,

  // identification: why two spectra cannot be compared.
  kNoPoints = 1340,
  kTooManyPoints = 1341,
  kPointNumberTooLarge = 1342,
  kOrdinateNotFinite = 1343,
  kOrdinateOutOfRange = 1344,
  kOrdinateNotANumber = 1345,
  kRangeTooLarge = 1346,
  kBaselineTooLong = 1347,
  kBaselineThroughPoint = 1348,
  kSampleIsZero = 1349,
  kStandardIsZero = 1350,
  kStandardLacksPoints = 1351,
  kShortTransform = 1352,
  kNullRegionsWithoutSpacing = 1353,
  kNullRegionWithoutBounds = 1354,
  kSpacingIsZero = 1360,
  kNoSpacing = 1361,
  kBandOfOnePoint = 1362,
  kNoBand = 1363,
  kBandLacksPoints = 1364,
  kStandardAddsUpToZero = 1365,
  kBandMeasure = 1366,
  kLumivarQuality = 1367,

  // identification: peak files.
  kNoPeakPosition = 1380,
  kEmptyPeakFile = 1381,
  kNoPeakFile = 1382,

  // review.
  kResults = 1400,
  kPrintResults = 1401,
  kChartPrintTitle = 1402,
  kTemplateNotCompleted = 1403,
  kFirstWavenumbersDiffer = 1404,
  kSpectrumEntry = 1405,
  kReprocessedSample = 1406,

  // pls: the prediction form.
  kPrediction = 1500,
  kNewCalibrationFile = 1501,
  kPredict = 1502,
  kPrintPrediction = 1503,
  kPredictionDone = 1504,
  kPredictedSample = 1505,
  kCalibrationNotLoaded = 1506,
  kCalibrationErrorTitle = 1507,

  // pls: the library's codes from -5 to 11, as they have always read.
  kPlsNoSpectrum = 1520,
  kPlsItemCount = 1521,
  kPlsNoValue = 1522,
  kPlsNoPrediction = 1523,
  kPlsNoCalibration = 1524,
  kPlsNoError = 1525,
  kPlsMemory = 1526,
  kPlsCalibrationOpen = 1527,
  kPlsCalibrationRead = 1528,
  kPlsSourceOpen = 1529,
  kPlsSourceRead = 1530,
  kPlsSourceMismatch = 1531,
  kPlsPreprocessing = 1532,
  kPlsCalibrationNumber = 1533,
  kPlsTooLittleInformation = 1534,
  kPlsCalculation = 1535,
  kPlsItemCopy = 1536,
  kPlsNoErrorNumber = 1537,

  // pls: what errors are about.
  kCharacterCode = 1540,
  kArrayOfValues = 1541,
  kElementOfArray = 1542,
  kFTest = 1543,
  kLibraryFunction = 1544,
  kLibraryFunctionFailed = 1545,
};

const platform::TextTable& Texts();

// The text of this number; error 5 for a number that has none.
const std::string& Text(int id);
inline const std::string& Text(TextId id) {
  return Text(static_cast<int>(id));
}
// The text with its places filled in.
inline std::string Text(TextId id, std::initializer_list<std::string_view> values) {
  return platform::FillPlaces(Text(id), values);
}

}  // namespace veritane::state
