#include "tests/contracts/DockExtensionRows.h"

#include "FieldEditors/TvkFieldEditorDockWin.h"
#include "FieldEditors/TvkNodeEditor.h"

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
    };
    return s_rows;
}
