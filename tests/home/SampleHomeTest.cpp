#include "support/SampleHome.h"

#include "app/AppModel.h"
#include "app/ScannedModel.h"
#include "home/ScanOfHome.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <string>

namespace orlen {
namespace {

using SampleHome::Layout;

std::string nameOf(const testing::TestParamInfo<Layout>& layout)
{
    switch (layout.param) {
    case Layout::plain:
        return "defaultFolders";
    case Layout::moved:
        return "movedFolders";
    case Layout::misled:
        return "defaultFoldersDespiteVariables";
    case Layout::flatpak:
        return "aFlatpaksFolders";
    case Layout::snap:
        return "aSnapsFolders";
    }
    return {};
}

class SampleHomeTest : public testing::TestWithParam<Layout> {};

TEST_P(SampleHomeTest, aScanMakesOfEveryPlaceWhatItsRowSays)
{
    const TempHome home;
    SampleHome::make(home.path(), GetParam());
    for (const auto& [name, folder] : SampleHome::variables(home.path(), GetParam()))
        TempHome::setVariable(name.c_str(), folder);
    const auto places = SampleHome::places(home.path(), GetParam());
    int process = 100;
    for (const SampleHome::Placed& placed : places) {
        if (!placed.row->program.empty())
            home.link(home.outside("system/proc/" + std::to_string(process++) + "/exe"), placed.row->program);
    }
    TempHome::reloadPlaces();

    AppModel::Options options = kCommand;
    options.images.program = ORLEN_RECOGNIZER;
    AppModel model(options);
    model.results()->setLargeThresholdMB(SampleHome::kLargeMegabytes);
    scan(model);
    const auto differences = ScanOfHome(*model.results(), home.path()).differences(places);
    EXPECT_TRUE(differences.empty()) << ScanOfHome::table(differences);
}

INSTANTIATE_TEST_SUITE_P(, SampleHomeTest,
                         testing::Values(Layout::plain, Layout::moved, Layout::misled, Layout::flatpak,
                                         Layout::snap),
                         nameOf);

} // namespace
} // namespace orlen
