#pragma once

#include "model/Rating.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// A rating as a chip shows it; all empty when there is none.
class RatingValue {
    Q_GADGET
    QML_VALUE_TYPE(ratingValue)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString symbol MEMBER symbol)

public:
    RatingValue() = default;
    explicit RatingValue(Rating rating);

    QString name; ///< raw value: "safe", "review", "keep"
    QString label;
    QString symbol; ///< icon name

    friend bool operator==(const RatingValue&, const RatingValue&) = default;
};

} // namespace orlen
