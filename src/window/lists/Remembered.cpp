#include "window/lists/Remembered.h"

#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <array>

namespace orlen::Remembered {

namespace {

constexpr double kMostMegabytes = 1e9;
const QString kChoices = QStringLiteral("choice/");
const QString kLargeFiles = QStringLiteral("largeFilesFromMB");

const QString kKeptFile = QStringLiteral("keep/file");
const QString kKeptFolder = QStringLiteral("keep/folder");
const QString kReferences = QStringLiteral("keep/always");

// In the order of KeepRule::Order.
constexpr std::array<const char*, 4> kKeepOrders{"usual", "newest", "oldest", "shortest"};

QString keyOf(const QString& list)
{
    return QStringLiteral("order/") + list;
}

} // namespace

std::optional<double> largeThresholdMB()
{
    bool isNumber = false;
    const double value = QSettings().value(kLargeFiles).toDouble(&isNumber);
    if (!isNumber || !(value >= 1 && value <= kMostMegabytes))
        return std::nullopt;
    return value;
}

void setLargeThresholdMB(double megabytes)
{
    QSettings().setValue(kLargeFiles, megabytes);
}

KeepRule keepRule()
{
    const QSettings settings;
    KeepRule rule;
    const auto isWhole = [](const QString& path) { return path.startsWith(u'/') && path.size() > 1; };
    const auto* order = std::ranges::find(kKeepOrders, settings.value(kKeptFile).toString().toStdString());
    if (order != kKeepOrders.end())
        rule.order = static_cast<KeepRule::Order>(order - kKeepOrders.begin());
    if (const QString folder = settings.value(kKeptFolder).toString(); isWhole(folder))
        rule.folder = folder.toStdString();
    for (const QString& folder : settings.value(kReferences).toStringList()) {
        if (isWhole(folder))
            rule.references.push_back(folder.toStdString());
    }
    return rule;
}

void setKeepRule(const KeepRule& rule)
{
    QSettings settings;
    QStringList references;
    for (const std::string& folder : rule.references)
        references << QString::fromStdString(folder);
    settings.setValue(kKeptFile, QLatin1String(kKeepOrders[static_cast<std::size_t>(rule.order)]));
    settings.setValue(kKeptFolder, QString::fromStdString(rule.folder));
    settings.setValue(kReferences, references);
}

QString choice(const QString& name)
{
    return QSettings().value(kChoices + name).toString();
}

void setChoice(const QString& name, const QString& choice)
{
    QSettings().setValue(kChoices + name, choice);
}

EntryOrder::Wish order(const QString& list)
{
    const QStringList words = QSettings().value(keyOf(list)).toString().split(u' ');
    const auto key = EntryOrder::keyFrom(words.value(0).toStdString());
    if (!key)
        return {};
    const bool isReversed = words.value(1) == QLatin1String("reversed");
    return {*key, isReversed ? EntryOrder::Direction::reversed : EntryOrder::Direction::usual, {}};
}

void setOrder(const QString& list, const EntryOrder::Wish& wish)
{
    const std::string key(EntryOrder::rawValue(wish.key));
    const bool isReversed = wish.direction == EntryOrder::Direction::reversed;
    QSettings().setValue(keyOf(list), QString::fromStdString(isReversed ? key + " reversed" : key));
}

} // namespace orlen::Remembered
