#include "window/lists/Remembered.h"

#include <QSettings>

namespace orlen::Remembered {

namespace {

constexpr double kMostMegabytes = 1e9;
const QString kChoices = QStringLiteral("choice/");
const QString kLargeFiles = QStringLiteral("largeFilesFromMB");

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
