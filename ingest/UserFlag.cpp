#include "UserFlag.h"

#include <type_traits>
#include <variant>

namespace quorb {

UserFlagRecord USERFLAG, USERFLAGfactory, USERFLAGsaved;

static_assert(std::is_trivially_copyable_v<UserFlagRecord>);
static_assert(sizeof(UserFlagRecord) == 54 * sizeof(double));

namespace {

using Record = UserFlagRecord;

struct NamedField {
  std::string_view name;
  std::variant<double Record::*, OptionColour Record::*> member;
};

const NamedField kFields[] = {
    {"NoPlotEarth", &Record::NoPlotEarth},
    {"NoColourAxisX", &Record::NoColourAxisX},
    {"LargeCharacters", &Record::LargeCharacters},
    {"NoPlotAxis", &Record::NoPlotAxis},
    {"NoLogoLabel", &Record::NoLogoLabel},
    {"NoOriginLabel", &Record::NoOriginLabel},
    {"NoTimeMoving", &Record::NoTimeMoving},
    {"ThicknessLinePlot", &Record::ThicknessLinePlot},
    {"LengthAxisFactor", &Record::LengthAxisFactor},
    {"ThicknessLineAxis", &Record::ThicknessLineAxis},
    {"PositionFactor", &Record::PositionFactor},
    {"ColourAxisLabels", &Record::ColourAxisLabels},
    {"ColourAxis", &Record::ColourAxis},
    {"ColourPlotNominal", &Record::ColourPlotNominal},
    {"ColourPlotEvents", &Record::ColourPlotEvents},
    {"ColourSphere", &Record::ColourSphere},
    {"ColourBackground", &Record::ColourBackground},
    {"MoonAmplification", &Record::MoonAmplification},
    {"InteractiveExcel", &Record::InteractiveExcel},
    {"SatelliteSize", &Record::SatelliteSize},
    {"ShowSatellite", &Record::ShowSatellite},
    {"SolarPanelToSun", &Record::SolarPanelToSun},
    {"LogoScale", &Record::LogoScale},
    {"MovieFrameCount", &Record::MovieFrameCount},
    {"MovieFrameTime", &Record::MovieFrameTime},
    {"MovieFrames", &Record::MovieFrames},
    {"MovieNextTime", &Record::MovieNextTime},
    {"MovieArmed", &Record::MovieArmed},
    {"PendingIsoRequest", &Record::PendingIsoRequest},
    {"UpdateAsked", &Record::UpdateAsked},
    {"NedInput", &Record::NedInput},
    {"LocalCentreIndex", &Record::LocalCentreIndex},
    {"SatelliteModelReady", &Record::SatelliteModelReady},
    {"TimeInData", &Record::TimeInData},
    {"NoSunRay", &Record::NoSunRay},
    {"EMView", &Record::EMView},
    {"SatelliteShape", &Record::SatelliteShape},
    {"MovieRealTime", &Record::MovieRealTime},
    {"MovieDataTime", &Record::MovieDataTime},
    {"CubicView", &Record::CubicView},
    {"InMetres", &Record::InMetres},
    {"SynchroExcelComplete", &Record::SynchroExcelComplete},
};

}  // namespace

std::vector<double*> FieldNumbers(UserFlagRecord& record, std::string_view name) {
  for (const NamedField& field : kFields) {
    if (field.name != name) continue;
    if (const auto* number = std::get_if<double Record::*>(&field.member)) return {&(record.**number)};
    OptionColour& colour = record.*std::get<OptionColour Record::*>(field.member);
    return {&colour.red, &colour.green, &colour.blue};
  }
  return {};
}

std::vector<std::string_view> FieldNames() {
  std::vector<std::string_view> names;
  for (const NamedField& field : kFields)
    names.push_back(field.name);
  return names;
}

}  // namespace quorb
