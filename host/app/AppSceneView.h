#pragma once

#include "app/AppClick.h"

#include "lib/HostMarker.h"

#include <Inventor/SbBasic.h>

#include <QTimer>
#include <QWidget>

#include <memory>

class AppExaminerViewer;
class SbVec2s;
class SoNode;
class SoPath;
class SoSeparator;

/**
 * The picture of the scene, to be looked at from all sides with the mouse. A click picks what is
 * under the mouse; dragging is the viewer's own. The selected node is marked with a box.
 */
class AppSceneView : public QWidget
{
    Q_OBJECT

public:
    explicit AppSceneView(QWidget* parent = nullptr);
    ~AppSceneView() override;

    /** Shows another scene, all of it, or as its own camera has it; null shows nothing. */
    void setScene(SoNode* root);
    /** The node that holds the scene in the view. */
    const SoNode* sceneParent() const;
    /** The widget that is drawn into, for those who want to look at the picture. */
    QWidget* canvas() const;

public slots:
    /** Marks the path's end in the picture; null marks nothing. */
    void mark(const SoPath* path);

signals:
    /** The path from the scene's root to the shape clicked at; null for a click at nothing. */
    void clicked(const SoPath* path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private slots:
    void redraw();

private:
    static SbBool seeEvent(void* view, QEvent* event);
    void pick(const QPoint& position);

    SoSeparator* const m_top; ///< referenced: the scene, its camera once more, the marker
    HostMarker m_marker;
    std::unique_ptr<AppExaminerViewer> m_viewer;
    SoNode* m_root = nullptr; ///< not owned; below m_top
    AppClick m_click;
    QTimer m_redrawTimer;
    int m_redrawsLeft = 0;
};
