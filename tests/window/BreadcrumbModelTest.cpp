#include "window/diskmap/BreadcrumbModel.h"

#include "platform/files/Places.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace orlen {

namespace {

std::vector<std::string> way(int folders)
{
    std::vector<std::string> result{Places::current().home};
    while (static_cast<int>(result.size()) < folders)
        result.push_back(result.back() + "/f" + std::to_string(result.size()));
    return result;
}

/// The names and steps as one line; a gap in brackets, the last one with a star.
std::string shown(const BreadcrumbModel& model)
{
    using Role = BreadcrumbModel::Role;
    std::string line;
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto value = [&](Role role) { return model.data(model.index(row), static_cast<int>(role)); };
        const std::string name = value(Role::name).toString().toStdString();
        line += (line.empty() ? "" : " ") + (value(Role::isGap).toBool() ? "(" + name + ")" : name) + ":" +
                std::to_string(value(Role::step).toInt()) + (value(Role::isLast).toBool() ? "*" : "");
    }
    return line;
}

} // namespace

TEST(BreadcrumbModelTest, keepsTheEndsOfALongWay)
{
    BreadcrumbModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    struct Case {
        int folders;
        const char* line;
    };
    // In this order, so that folders come and go.
    constexpr Case cases[] = {
        {1, "Home:0*"},
        {2, "Home:0 f1:1*"},
        {4, "Home:0 f1:1 f2:2 f3:3*"},
        {5, "Home:0 (f2):2 f3:3 f4:4*"},
        {8, "Home:0 (f5):5 f6:6 f7:7*"},
        {3, "Home:0 f1:1 f2:2*"},
        {1, "Home:0*"},
    };
    for (const Case& c : cases) {
        model.setFolders(way(c.folders));
        EXPECT_EQ(shown(model), c.line);
    }
    model.setFolders({"/media/disk", "/media/disk/films"});
    EXPECT_EQ(shown(model), "/media/disk:0 films:1*");
}

} // namespace orlen
