#include "tests/contracts/DockExtensionRows.h"

#include "Console/TvkConsole.h"
#include "FieldEditors/TvkFieldEditorDockWin.h"
#include "FieldEditors/TvkNodeEditor.h"
#include "ProfileSelector/TvkProfileSelectorExtension.h"

namespace {

template <class Extension>
std::unique_ptr<TvkExtension> made()
{
    return std::make_unique<Extension>();
}

} // namespace

const QVector<DockExtensionRow>& dockExtensions()
{
    static const QVector<DockExtensionRow> s_rows = {
        {"TvkFieldEditorDockWin", made<TvkFieldEditorDockWin>, "Field Editor", "DockWidget",
         Qt::RightDockWidgetArea},
        {"TvkNodeEditor", made<TvkNodeEditor>, "Node Editor", "DockWidget",
         Qt::RightDockWidgetArea},
        {"TvkConsole", made<TvkConsole>, "Console", "DockWidget", Qt::BottomDockWidgetArea, true},
        {"TvkProfileSelectorExtension", made<TvkProfileSelectorExtension>, "Profile Selector",
         "ToolBar", Qt::TopToolBarArea},
    };
    return s_rows;
}
