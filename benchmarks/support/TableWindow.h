#pragma once

#include <QWidget>

/** A window of the size that all tables here are measured in, on the screen. */
class TableWindow : public QWidget
{
public:
    /** With this widget in it, hidden, which it takes over no ownership of. */
    explicit TableWindow(QWidget& content);
    ~TableWindow() override;

    /** Lets everything pass that the last step has set going. */
    static void settle();
    /** Has the events handled, paint events among them, that are there already. */
    static void handleEvents();

private:
    QWidget& m_content;
};
