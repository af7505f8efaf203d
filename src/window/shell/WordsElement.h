#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Looks up the texts of the screens, as the singleton `Words`. Its arguments are literals, as in
/// model/Text.h: the tools that collect the texts find them by these names. In `places` numbers are whole
/// numbers, written as the language does; strings stand as they are.
class WordsElement : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Words)
    QML_SINGLETON
    /// Whether the language is written from right to left.
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft CONSTANT)
    /// The folder of the program's data, as a text names it.
    Q_PROPERTY(QString dataFolder READ dataFolder CONSTANT)

public:
    [[nodiscard]] static bool isRightToLeft();
    [[nodiscard]] static QString dataFolder();

    /// Facts on one line, without empty ones.
    Q_INVOKABLE [[nodiscard]] static QString facts(const QStringList& facts);

    Q_INVOKABLE [[nodiscard]] static QString message(const QString& text, const QVariantMap& places = {});
    Q_INVOKABLE [[nodiscard]] static QString messageIn(const QString& context, const QString& text,
                                                       const QVariantMap& places = {});
    /// The number it depends on is the place "count".
    Q_INVOKABLE [[nodiscard]] static QString messages(const QString& one, const QString& many,
                                                      const QVariantMap& places);
};

} // namespace orlen
