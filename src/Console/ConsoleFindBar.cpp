#include "Console/ConsoleFindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace {

QToolButton* button(const char* name, const QString& text, QWidget* parent)
{
    auto* const made = new QToolButton(parent);
    made->setObjectName(QLatin1String(name));
    made->setText(text);
    made->setAutoRaise(true);
    return made;
}

} // namespace

ConsoleFindBar::ConsoleFindBar(QWidget* parent)
    : QFrame(parent), m_line(new QLineEdit(this)), m_answer(new QLabel(this))
{
    m_line->setObjectName(QStringLiteral("findLine"));
    m_line->setPlaceholderText(tr("Find"));
    m_line->setAccessibleName(tr("Text to find"));
    m_line->setClearButtonEnabled(true);
    m_answer->setObjectName(QStringLiteral("findAnswer"));
    QToolButton* const previous = button("findPreviousButton", tr("Previous"), this);
    QToolButton* const next = button("findNextButton", tr("Next"), this);
    QToolButton* const close = button("findCloseButton", tr("Close"), this);

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line, 1);
    layout->addWidget(m_answer);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(close);

    connect(m_line, SIGNAL(textEdited(QString)), SLOT(findTyped()));
    connect(previous, SIGNAL(clicked()), SLOT(findPrevious()));
    connect(next, SIGNAL(clicked()), SLOT(findNext()));
    connect(close, SIGNAL(clicked()), SLOT(hide()));
    hide();
}

void ConsoleFindBar::open()
{
    const QString selected = m_view->textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        m_line->setText(selected);
    m_answer->clear();
    show();
    m_line->setFocus(Qt::ShortcutFocusReason);
    m_line->selectAll();
}

void ConsoleFindBar::findNext()
{
    find(false);
}

void ConsoleFindBar::findPrevious()
{
    find(true);
}

/** From where the last place begins, so that it grows with the text while that is typed. */
void ConsoleFindBar::findTyped()
{
    QTextCursor place = m_view->textCursor();
    place.setPosition(place.selectionStart());
    m_view->setTextCursor(place);
    find(false);
}

void ConsoleFindBar::find(bool backward)
{
    const QString text = m_line->text();
    if (text.isEmpty()) {
        m_answer->clear();
        return;
    }
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    const QTextCursor before = m_view->textCursor();
    if (m_view->find(text, flags)) {
        say(true);
        return;
    }
    m_view->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    const bool isFound = m_view->find(text, flags);
    if (!isFound)
        m_view->setTextCursor(before);
    say(isFound);
}

void ConsoleFindBar::say(bool isFound)
{
    m_answer->setText(isFound ? QString() : tr("Not found"));
}

void ConsoleFindBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        hide();
        m_view->setFocus(Qt::OtherFocusReason);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        find(event->modifiers().testFlag(Qt::ShiftModifier));
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}
