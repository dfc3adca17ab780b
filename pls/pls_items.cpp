// Which item each plain method of PLSPred delivers, and what it needs.
#include "pls/pls_pred.h"

namespace veritane::pls {

std::int32_t PLSPred::GetResidual(Array& Values, std::int32_t& Size) {
  return ReadArray("residual", Values, Size);
}
std::int32_t PLSPred::GetConcentration(Array& Values, std::int32_t& Size) {
  return ReadArray("concentration", Values, Size);
}
std::int32_t PLSPred::GetScores(Array& Values, std::int32_t& Size) {
  return ReadArray("scores", Values, Size);
}
std::int32_t PLSPred::GetDistance(Array& Values, std::int32_t& Size) {
  return ReadArray("distance", Values, Size);
}
std::int32_t PLSPred::GetResid_Spectrum(Array& Values, std::int32_t& Size) {
  return ReadArray("resid_spectrum", Values, Size);
}
std::int32_t PLSPred::GetSource(Array& Values, std::int32_t& Size) {
  return ReadArray("source", Values, Size);
}
std::int32_t PLSPred::GetConc_Limits(Array& Values, std::int32_t& Size) {
  return ReadArray("conc_limits", Values, Size);
}
std::int32_t PLSPred::GetScore_Limits(Array& Values, std::int32_t& Size) {
  return ReadArray("score_limits", Values, Size);
}
std::int32_t PLSPred::GetResid_Limits(Array& Values, std::int32_t& Size) {
  return ReadArray("resid_limits", Values, Size);
}
std::int32_t PLSPred::GetDist_Limits(Array& Values, std::int32_t& Size) {
  return ReadArray("dist_limits", Values, Size);
}
std::int32_t PLSPred::GetFratioRaw(Array& Values, std::int32_t& Size) {
  return ReadArray("fratio", Values, Size);
}
std::int32_t PLSPred::GetProc_Spectrum(Array& Values, std::int32_t& Size) {
  return ReadArray("proc_spectrum", Values, Size);
}

std::int32_t PLSPred::GetCalfac(Array& Values, std::int32_t& Size) {
  return ReadCounted("calfac", Values, Size);
}
std::int32_t PLSPred::GetFlags(Array& Values, std::int32_t& Size) {
  return ReadCounted("flags", Values, Size);
}
std::int32_t PLSPred::GetPrep(Array& Values, std::int32_t& Size) {
  return ReadCounted("prep", Values, Size);
}
std::int32_t PLSPred::GetBsln(Array& Values, std::int32_t& Size) {
  return ReadCounted("bsln", Values, Size);
}
std::int32_t PLSPred::GetThick(Array& Values, std::int32_t& Size) {
  return ReadCounted("thick", Values, Size);
}

std::int32_t PLSPred::GetFsets(double& Value) {
  return ReadNumber("fsets", PredictedOrRead(), Value);
}
std::int32_t PLSPred::GetFfp(double& Value) {
  return ReadNumber("ffp", predicted_, Value);
}
std::int32_t PLSPred::GetFlp(double& Value) {
  return ReadNumber("flp", predicted_, Value);
}
std::int32_t PLSPred::GetNpts(double& Value) {
  return ReadNumber("npts", predicted_, Value);
}
std::int32_t PLSPred::GetXtype(std::int16_t& Value) {
  return ReadInteger("xtype", predicted_, Value);
}
std::int32_t PLSPred::GetYtype(std::int16_t& Value) {
  return ReadInteger("ytype", predicted_, Value);
}
std::int32_t PLSPred::GetNcomp(std::int16_t& Value) {
  return ReadInteger("ncomp", PredictedOrRead(), Value);
}

}  // namespace veritane::pls
