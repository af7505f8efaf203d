#include "window/lists/RowsModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <algorithm>
#include <string>
#include <vector>

namespace orlen {

namespace {

class Letters : public RowsModel {
public:
    void show(std::vector<std::string> letters)
    {
        setRows(m_letters, std::move(letters), [](const std::string& letter) { return letter.substr(0, 1); });
    }

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_letters.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override
    {
        return role == Qt::DisplayRole ? QString::fromStdString(m_letters[number]) : QVariant();
    }

    std::vector<std::string> m_letters;
};

} // namespace

TEST(RowsModelTest, rowsOfTheSameKeyStayAndTellWhatChanged)
{
    Letters model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.show({"a", "b", "c", "d"});
    const QPersistentModelIndex d = model.index(3);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const QSignalSpy counts(&model, &RowsModel::countChanged);
    model.show({"d", "a2", "x"});
    EXPECT_EQ(d.row(), 0);
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(model.index(1).data(), "a2");
    EXPECT_EQ(counts.size(), 2) << "b and c went, x came";
    EXPECT_TRUE(resets.isEmpty());
}

TEST(RowsModelTest, whatTakesManyStepsIsShownAnew)
{
    Letters model;
    std::vector<std::string> letters;
    for (char letter = 1; letter < 120; ++letter)
        letters.emplace_back(1, letter);
    model.show(letters);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    std::reverse(letters.begin(), letters.end());
    model.show(letters);
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(model.index(0).data(), QString::fromStdString(letters[0]));
}

} // namespace orlen
