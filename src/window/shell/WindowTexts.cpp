#include "window/shell/WindowTexts.h"

#include "window/lists/DisplayText.h"

namespace orlen::WindowTexts {

QString name()
{
    return QStringLiteral("Orlen");
}

QString freeSpace(const QString& size)
{
    return QStringLiteral("%1 free").arg(size);
}

QString lastScan(const QString& safeSize)
{
    return QStringLiteral("Last scan: you can safely free %1").arg(safeSize);
}

QString open()
{
    return QStringLiteral("Open Orlen");
}

QString quit()
{
    return QStringLiteral("Quit");
}

QString scanFinished()
{
    return QStringLiteral("Smart Scan finished");
}

QString safelyFree(std::int64_t safeBytes)
{
    return safeBytes > 0 ? QStringLiteral("You can safely free %1").arg(DisplayText::size(safeBytes))
                         : QStringLiteral("Nothing is rated Safe right now");
}

QString moved(int count)
{
    return QStringLiteral("%1 moved to the Trash").arg(DisplayText::number(count));
}

QString couldNotBeMoved(int count)
{
    return count == 0 ? QString() : QStringLiteral("%1 couldn't be moved").arg(DisplayText::number(count));
}

QString cannotReveal(const QString& path)
{
    return QStringLiteral("No program could show this item: %1").arg(path);
}

const char* alreadyOpen()
{
    return "Orlen is open already.";
}

const char* noDisplay()
{
    return "the window cannot be opened on this display; `orlen scan` works without one.";
}

} // namespace orlen::WindowTexts
