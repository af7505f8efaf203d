#include "window/about/PathTestModel.h"

#include "app/AppTexts.h"
#include "app/ExplanationText.h"
#include "clean/Safety.h"
#include "platform/files/Places.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <QStringList>
#include <QUrl>

#include <chrono>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kPause{250};

/// An absolute path; empty if the text is none.
std::string pathOf(const QString& text)
{
    const QString typed = text.trimmed();
    if (typed.startsWith(QLatin1String("file:///")))
        return QUrl::fromPercentEncoding(typed.mid(7).toUtf8()).toStdString();
    if (typed == QLatin1String("~") || typed.startsWith(QLatin1String("~/")))
        return Places::current().home + typed.mid(1).toStdString();
    return typed.startsWith('/') ? typed.toStdString() : std::string();
}

} // namespace

PathTestModel::PathTestModel(AppModel& app) : m_app(app), m_workers(*this)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(kPause);
    connect(&m_pause, &QTimer::timeout, this, &PathTestModel::look);
    connect(m_app.exclusions(), &ExclusionList::changed, this, &PathTestModel::look);
}

void PathTestModel::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    Q_EMIT textChanged();
    m_look.drop();
    if (m_text.trimmed().isEmpty()) {
        m_pause.stop();
        setAnswer(false, {}, {});
        return;
    }
    m_pause.start();
    setAnswer(true, {}, {});
}

void PathTestModel::look()
{
    m_look.drop();
    if (m_text.trimmed().isEmpty())
        return;
    const std::string path = pathOf(m_text);
    if (path.empty()) {
        setAnswer(false, {}, DisplayText::text(WindowTexts::kWholePath));
        return;
    }
    setAnswer(true, {}, {});
    m_workers.start(
        m_look,
        [path, threshold = m_app.results()->largeThreshold(),
         exclusions = m_app.exclusions()->current()](const std::stop_token& stop) {
            Safety::refresh();
            return explain(Places::current().normalized(path), threshold, exclusions, stop);
        },
        [this](const Explanation& told) { show(told); });
}

void PathTestModel::show(const Explanation& told)
{
    const QString size = told.exists ? DisplayText::size(told.size) : DisplayText::text(AppTexts::kNotThere);
    QStringList lines;
    for (const Message& sentence :
         ExplanationText::sentences(told, [](Rating rating) { return within(label(rating)); }))
        lines << DisplayText::text(sentence);
    setAnswer(false, DisplayText::facts({DisplayText::shortPath(told.path), size}), lines.join('\n'));
}

void PathTestModel::setAnswer(bool isLooking, const QString& heading, const QString& answer)
{
    m_isLooking = isLooking;
    m_heading = heading;
    m_answer = answer;
    Q_EMIT changed();
}

} // namespace orlen
