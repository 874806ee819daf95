#include "FieldEditors/TvkEditorDock.h"

#include <TvkEditor.h>
#include <TvkProfileSetting.h>
#include <TvkServices.h>
#include <TvkShell.h>

#include <QDockWidget>

TvkEditorDock::TvkEditorDock(const Identity& identity) : m_identity(identity)
{
    setObjectName(QLatin1String(identity.objectName));
    m_name = identity.title;
    m_description = identity.description;
    m_vendor = "Quelvar";
    m_version = "1.0.0";
}

TvkEditorDock::~TvkEditorDock() = default;

void TvkEditorDock::createWidgets()
{
    m_dock = new QDockWidget;
    m_dock->setObjectName(objectName());
    m_dock->setAcceptDrops(false);
    m_dock->setWindowTitle(QLatin1String(m_identity.title));
    m_dock->hide();
}

void TvkEditorDock::activate()
{
    // Once, as the deactivation: a second one would be told everything twice.
    const bool wasActive = isActive();
    TvkExtension::activate();
    if (wasActive)
        return;
    connect(TvkServices::getInstance(), m_identity.signal, this, m_identity.slot);
    TvkShell::getInstance()->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    TvkShell::getInstance()->registerExtension(this, true);
}

void TvkEditorDock::deactivate()
{
    releaseCurrentEditor();
    // Once: a second deactivation finds nothing to disconnect and nothing to take out.
    const bool wasActive = isActive();
    TvkExtension::deactivate();
    if (!wasActive)
        return;
    disconnect(TvkServices::getInstance(), m_identity.signal, this, m_identity.slot);
    TvkShell::getInstance()->removeDockWidget(m_dock);
    TvkShell::getInstance()->unregisterExtension(this);
}

void TvkEditorDock::show()
{
    TvkExtension::show();
    if (!m_dock)
        return;
    m_dock->show();
    m_dock->raise(); // it may share its place with others
}

void TvkEditorDock::hide()
{
    TvkExtension::hide();
    if (m_dock)
        m_dock->hide();
}

void TvkEditorDock::releaseWidgets()
{
    // Or the dock would delete the editor's widget with itself.
    releaseCurrentEditor();
    delete m_dock.data();
}

void TvkEditorDock::editObject(SoTypedObject object)
{
    releaseCurrentEditor();
    if (object.isNull())
        return;
    TvkEditor* const editor = bestEditor(object.getTypeId());
    if (!editor || !m_dock)
        return;
    editor->setEditedObject(&object);
    m_dock->setWidget(editor->getWidget());
    editor->activate();
    m_currentEditor = editor;
    show();
}

void TvkEditorDock::releaseCurrentEditor()
{
    TvkEditor* const editor = m_currentEditor;
    if (!editor)
        return;
    editor->deactivate();
    editor->setEditedObject(nullptr);
    if (m_dock)
        m_dock->setWidget(nullptr);
    if (QWidget* const widget = editor->getWidget())
        widget->setParent(nullptr);
    m_currentEditor = nullptr;
    hide();
}

TvkEditor* TvkEditorDock::bestEditor(SoType type) const
{
    TvkEditor* best = nullptr;
    const TvkProfileSetting* const setting = getProfileSetting();
    if (!setting)
        return nullptr;
    for (const auto& controlled : setting->getControlledExtensions()) {
        auto* const editor = qobject_cast<TvkEditor*>(controlled.first);
        if (!editor || !type.isDerivedFrom(editor->getHandledType()))
            continue;
        // Kept on purpose: of two editors for the same type the later one is taken.
        if (!best || editor->getHandledType().isDerivedFrom(best->getHandledType()))
            best = editor;
    }
    return best;
}
