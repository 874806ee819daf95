#pragma once

#include <QObject>
#include <QPointer>

class HostShell;
class QDockWidget;
class QMainWindow;
class SoField;

/**
 * Finds the plug-ins' docks for the editors of the selected node and field, gives them their first
 * places, and keeps the node's as high as it is while the field's comes and goes: a field is
 * selected by the first click of a double click, and nothing may move under the second.
 */
class HostEditorDocks : public QObject
{
    Q_OBJECT

public:
    /** Neither is owned. */
    HostEditorDocks(QMainWindow& window, const HostShell& shell);
    ~HostEditorDocks() override;

    /** Places them above the history; answers whether there is a dock for nodes. */
    bool arrange(QDockWidget& history);

public slots:
    /** To be called before the dock for fields hears of it. */
    void s_selectedFieldChanged(SoField* field);

private slots:
    void restoreHeight();

private:
    QMainWindow& m_window;
    const HostShell& m_shell;
    QPointer<QDockWidget> m_nodeDock; ///< not owned
    QPointer<QDockWidget> m_history;  ///< not owned
    int m_height = 0;                 ///< the node dock's before the selection changed
};
