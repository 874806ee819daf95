#include "Console/ConsoleView.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLocale>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimerEvent>

#include <algorithm>
#include <memory>

namespace {

// The messages' dark colours need a light ground, also where the rest of the window is dark.
const QColor PaperInDarkThemes(0xF4, 0xF4, 0xEF);
constexpr int MiddleLightness = 128;

constexpr int LinesDroppedAtOnce = 100; // of as many as are kept, one in so many

QTextCharFormat inColor(const QColor& color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

} // namespace

ConsoleView::ConsoleView(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    document()->setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    m_end = QTextCursor(document());
    chooseBase();
    addActions();
}

ConsoleView::~ConsoleView()
{
    closeBlock();
}

void ConsoleView::addActions()
{
    m_findAction = new QAction(tr("&Find..."), this);
    m_findAction->setObjectName(QStringLiteral("findAction"));
    m_findAction->setShortcut(QKeySequence::Find);
    m_findAction->setShortcutContext(Qt::WidgetShortcut);
    connect(m_findAction, SIGNAL(triggered()), SIGNAL(findRequested()));
    addAction(m_findAction);
    m_wrapAction = new QAction(tr("&Word Wrap"), this);
    m_wrapAction->setObjectName(QStringLiteral("wordWrapAction"));
    m_wrapAction->setCheckable(true);
    connect(m_wrapAction, SIGNAL(toggled(bool)), SLOT(wrapLines(bool)));
    addAction(m_wrapAction);
}

void ConsoleView::addParagraph(const QString& text, const QColor& color)
{
    if (wouldSelectMore())
        holdSelection();
    openBlock();
    const bool isFirst = document()->isEmpty();
    m_end.insertText(isFirst ? text : QLatin1Char('\n') + text, inColor(color));
}

void ConsoleView::clearText()
{
    closeBlock();
    clear();
    m_droppedLines = 0;
}

/** Whether the user's selection reaches the end and would grow with what is inserted there. */
bool ConsoleView::wouldSelectMore() const
{
    const QTextCursor user = textCursor();
    const bool isHeld =
        user.position() >= user.anchor() && user.keepPositionOnInsert() == user.hasSelection();
    return !isHeld && std::max(user.position(), user.anchor()) == m_end.position();
}

/**
 * A cursor's anchor moves along with what is inserted before it, whatever the cursor is told: it
 * must not be at the end, unless nothing is selected and both move.
 */
void ConsoleView::holdSelection()
{
    closeBlock();
    const QTextCursor user = textCursor();
    QTextCursor held(document());
    held.setPosition(user.selectionStart());
    held.setPosition(user.selectionEnd(), QTextCursor::KeepAnchor);
    held.setKeepPositionOnInsert(held.hasSelection());
    const QPoint place(horizontalScrollBar()->value(), verticalScrollBar()->value());
    setTextCursor(held); // goes to where the cursor is
    horizontalScrollBar()->setValue(place.x());
    verticalScrollBar()->setValue(place.y());
}

void ConsoleView::openBlock()
{
    if (m_isBlockOpen)
        return;
    m_followsEnd = isAtEnd();
    m_end.movePosition(QTextCursor::End);
    m_end.beginEditBlock();
    m_isBlockOpen = true;
    m_turnEnd.start(0, this);
}

void ConsoleView::closeBlock()
{
    if (!m_isBlockOpen)
        return;
    m_isBlockOpen = false;
    m_turnEnd.stop();
    m_end.endEditBlock();
    dropOldLines();
    if (m_followsEnd)
        goToEnd();
}

void ConsoleView::dropOldLines()
{
    const int surplus = blockCount() - m_keptLines;
    if (surplus <= m_keptLines / LinesDroppedAtOnce)
        return;
    // What the user looks at stays where it is as long as it is there at all.
    const QTextBlock top = firstVisibleBlock();
    const bool staysAtTop = top.blockNumber() >= surplus;
    const bool hasNotice = m_droppedLines > 0;
    m_droppedLines += hasNotice ? surplus - 1 : surplus;
    QTextCursor oldest(document());
    oldest.beginEditBlock();
    oldest.setPosition(document()->findBlockByNumber(surplus).position(), QTextCursor::KeepAnchor);
    oldest.removeSelectedText();
    const QString notice =
        tr("%1 older lines are no longer kept.").arg(QLocale().toString(m_droppedLines));
    oldest.insertText(notice + QLatin1Char('\n'), inColor(Qt::darkGray));
    oldest.endEditBlock();
    if (!m_followsEnd)
        verticalScrollBar()->setValue(staysAtTop ? top.firstLineNumber() : 0);
}

bool ConsoleView::isAtEnd() const
{
    return verticalScrollBar()->value() >= verticalScrollBar()->maximum();
}

void ConsoleView::goToEnd()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

/** Whatever happens to the view finds it laid out. */
bool ConsoleView::event(QEvent* event)
{
    if (event->type() != QEvent::Timer)
        closeBlock();
    // Only windows are told of the application's palette, what is in them of the change.
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        chooseBase();
    return QPlainTextEdit::event(event);
}

bool ConsoleView::viewportEvent(QEvent* event)
{
    closeBlock();
    return QPlainTextEdit::viewportEvent(event);
}

void ConsoleView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_turnEnd.timerId())
        closeBlock();
    else
        QPlainTextEdit::timerEvent(event);
}

void ConsoleView::resizeEvent(QResizeEvent* event)
{
    const bool wasAtEnd = isAtEnd();
    QPlainTextEdit::resizeEvent(event);
    if (wasAtEnd)
        goToEnd();
}

void ConsoleView::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    menu->setObjectName(QStringLiteral("consoleMenu"));
    menu->addSeparator();
    menu->addAction(m_findAction);
    menu->addAction(m_wrapAction);
    menu->exec(event->globalPos());
}

void ConsoleView::wrapLines(bool wrap)
{
    const bool wasAtEnd = isAtEnd();
    setLineWrapMode(wrap ? WidgetWidth : NoWrap);
    if (wasAtEnd)
        goToEnd();
}

void ConsoleView::chooseBase()
{
    const QWidget* const around = parentWidget();
    const QPalette theme = around ? around->palette() : QApplication::palette(this);
    QPalette own; // what is not set in it stays the theme's
    if (theme.color(QPalette::Base).lightness() < MiddleLightness) {
        own.setColor(QPalette::Base, PaperInDarkThemes);
        own.setColor(QPalette::Text, Qt::black);
    }
    setPalette(own);
}
