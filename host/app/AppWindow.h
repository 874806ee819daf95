#pragma once

#include "lib/HostMainWindow.h"

class AppSceneView;

/** The program's window: the host's, with a picture of the scene in its middle. */
class AppWindow : public HostMainWindow
{
    Q_OBJECT

public:
    /** Wants QApplication; brings up SoQt, which runs Coin's sensor queues from then on. */
    AppWindow();
    ~AppWindow() override;

    AppSceneView& view() { return *m_view; }

private slots:
    void dropScene();
    void showScene();

private:
    AppSceneView* const m_view; ///< the window's central widget, owned by it
};
