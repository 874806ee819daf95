#include "lib/HostNodePath.h"

#include "lib/HostFullPath.h"
#include "lib/HostText.h"

#include <Inventor/SoPath.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("HostNodePath", text);
}

QString typeOf(const SoNode& node)
{
    return HostText::fromCoin(node.getTypeId().getName());
}

QString nameOf(const SoNode& node)
{
    return HostText::fromCoin(node.getName());
}

int numberOf(const SoChildList* children)
{
    return children ? children->getLength() : 0;
}

/** The row of the child that has a text for its name, or type; -1 when there are not so many. */
int rowOf(const SoChildList* children, QString (*textOf)(const SoNode&), const QString& text,
          int number = 0)
{
    for (int row = 0; row < numberOf(children); ++row)
        if (textOf(*(*children)[row]) == text && number-- == 0)
            return row;
    return -1;
}

QString stepTo(const SoChildList& children, int row)
{
    const SoNode& child = *children[row];
    const QString name = nameOf(child);
    if (!name.isEmpty() && rowOf(&children, nameOf, name) == row)
        return QString::fromLatin1(QUrl::toPercentEncoding(name, QByteArray(), "."));
    int number = 0;
    for (int before = 0; before < row; ++before)
        if (typeOf(*children[before]) == typeOf(child))
            ++number;
    return QStringLiteral("%1[%2]").arg(typeOf(child), QString::number(number));
}

int rowOfStep(const SoChildList* children, const QString& step)
{
    static const QRegularExpression numbered(QStringLiteral("^(.*)\\[(\\d+)\\]$"));
    const QRegularExpressionMatch match = numbered.match(step);
    if (match.hasMatch()) {
        bool isNumber = false;
        const int number = match.captured(2).toInt(&isNumber);
        return isNumber ? rowOf(children, typeOf, match.captured(1), number) : -1;
    }
    const int named = rowOf(children, nameOf, QUrl::fromPercentEncoding(step.toUtf8()));
    return named >= 0 ? named : rowOf(children, typeOf, step);
}

} // namespace

HostNodePath::Target HostNodePath::split(const QString& text)
{
    const int dot = text.indexOf(QLatin1Char('.'), text.lastIndexOf(QLatin1Char('/')) + 1);
    return dot < 0 ? Target{text, QString()} : Target{text.left(dot), text.mid(dot + 1)};
}

QString HostNodePath::text(const SoPath& path)
{
    QString text;
    for (int i = 1; i < HostFullPath::length(path); ++i) {
        const SoChildList* const children = HostFullPath::node(path, i - 1)->getChildren();
        text += QLatin1Char('/') + stepTo(*children, HostFullPath::row(path, i));
    }
    return text.isEmpty() ? QStringLiteral("/") : text;
}

SoPath* HostNodePath::find(SoNode& root, const QString& text, QString* error)
{
    auto* path = new SoPath(&root);
    path->ref();
    QString done;
    for (const QString& step : text.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        const int row = rowOfStep(HostFullPath::tail(*path)->getChildren(), step);
        if (row < 0) {
            *error = tr("There is no node \"%1\" below \"%2\".")
                         .arg(step, done.isEmpty() ? QStringLiteral("/") : done);
            path->unref();
            return nullptr;
        }
        path->append(row);
        done += QLatin1Char('/') + step;
    }
    path->unrefNoDelete();
    return path;
}
