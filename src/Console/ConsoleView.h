#pragma once

#include <QBasicTimer>
#include <QPlainTextEdit>
#include <QTextCursor>

class QAction;

/**
 * A read-only view of messages, each in its colour, made for very many of them. A message is in the
 * document as soon as it is added; it is laid out and painted at the event loop's next turn,
 * together with the others of the same turn.
 *
 * The view follows its end while it is there. It keeps the newest lines, a million by default; when
 * older ones have to go, its first line says how many went.
 */
class ConsoleView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ConsoleView(QWidget* parent = nullptr);
    ~ConsoleView() override;

    /** Shown as it is written: line ends begin new lines, and nothing else has a meaning. */
    void addParagraph(const QString& text, const QColor& color);
    void clearText();

    /** At least that many lines are kept, and at most a hundredth more. */
    void setKeptLines(int lines) { m_keptLines = lines; }
    /** How many lines have gone since the view was empty. */
    int droppedLines() const { return m_droppedLines; }

signals:
    /** The user wants to look for a text. */
    void findRequested();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void wrapLines(bool wrap);

private:
    void addActions();
    bool wouldSelectMore() const;
    void holdSelection();
    void openBlock();
    void closeBlock();
    void dropOldLines();
    void chooseBase();
    bool isAtEnd() const;
    void goToEnd();

    // An edit block that stays open until the turn's end puts off the layout, not the text.
    QTextCursor m_end;
    bool m_isBlockOpen = false;
    bool m_followsEnd = true;
    QBasicTimer m_turnEnd;
    int m_keptLines = 1000000;
    int m_droppedLines = 0;
    QAction* m_findAction = nullptr;
    QAction* m_wrapAction = nullptr;
};
