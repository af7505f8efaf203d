#pragma once

#include "window/lists/RatingValue.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

struct Finding;

/// The heading above a finding's entries: its texts and rating, ready to show.
class FindingHeader {
    Q_GADGET
    QML_VALUE_TYPE(findingHeader)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString explanation MEMBER explanation)
    Q_PROPERTY(QString reason MEMBER reason)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QColor tone MEMBER tone)
    Q_PROPERTY(orlen::RatingValue rating MEMBER rating)
    Q_PROPERTY(bool cleanable MEMBER isCleanable)

public:
    [[nodiscard]] static FindingHeader of(const Finding& finding);

    QString title;
    QString explanation;
    QString reason; ///< "Why Safe: …"; empty when none is given
    QString symbol;
    QColor tone; ///< of the category
    RatingValue rating;
    bool isCleanable = false; ///< whether its entries can be selected at all

    friend bool operator==(const FindingHeader&, const FindingHeader&) = default;
};

} // namespace orlen
