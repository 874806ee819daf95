#pragma once

#include <TvkExtension.h>

#include "scenegraph/SoTypedObject.h"

#include <QPointer>

class QDockWidget;
class TvkEditor;

/**
 * The common base of the docks that follow the host's selection: the dock shows the widget of the
 * editor that fits the selected object best, and hides while there is none.
 *
 * A leaf says which signal of TvkServices it follows, and with which slot; the slot calls
 * editObject().
 */
class TvkEditorDock : public TvkExtension
{
    Q_OBJECT

public:
    /** What makes one such dock different from another; signal and slot as SIGNAL() and SLOT() give
     *  them. */
    struct Identity
    {
        const char* title; ///< of the dock, and the extension's name
        const char* description;
        const char* objectName;
        const char* signal;
        const char* slot;
    };

    ~TvkEditorDock() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void createWidgets() override;
    void show() override;
    void releaseWidgets() override;

protected:
    explicit TvkEditorDock(const Identity& identity);

    /** Releases the former editor, then shows the one that fits best; none for no object. */
    void editObject(SoTypedObject object);

private:
    void releaseCurrentEditor();
    TvkEditor* bestEditor(SoType type) const;

    const Identity m_identity;
    QPointer<QDockWidget> m_dock;        ///< null until createWidgets() and after releaseWidgets()
    QPointer<TvkEditor> m_currentEditor; ///< not owned
};
