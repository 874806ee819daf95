#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

/**
 * A line that looks for a text in a view: as it is typed, then on Return for the next place and on
 * Shift+Return for the one before, around the ends. Escape closes it.
 */
class ConsoleFindBar : public QFrame
{
    Q_OBJECT

public:
    explicit ConsoleFindBar(QWidget* parent = nullptr);

    /** The view to look in; not owned, and it must live as long as the bar is used. */
    void setView(QPlainTextEdit* view) { m_view = view; }

public slots:
    /** Shows the bar, with what is selected in the view as the text to look for. */
    void open();
    void findNext();
    void findPrevious();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void findTyped();

private:
    void find(bool backward);
    void say(bool isFound);

    QPlainTextEdit* m_view = nullptr;
    QLineEdit* m_line;
    QLabel* m_answer;
};
