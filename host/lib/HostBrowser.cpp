#include "lib/HostBrowser.h"

#include "lib/HostFullPath.h"
#include "lib/HostNodePath.h"
#include "lib/HostServices.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoNode.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>
#include <QTreeView>

namespace {

void followContents(QHeaderView& header, std::initializer_list<int> sections)
{
    for (int section : sections)
        header.setSectionResizeMode(section, QHeaderView::ResizeToContents);
}

} // namespace

HostBrowser::HostBrowser(HostServices& services)
    : m_services(services), m_sceneView(new QTreeView), m_fieldView(new QTableView)
{
    buildSceneView();
    buildFieldView();
    connect(&services, SIGNAL(selectedNodeChanged(SoFieldContainer*)),
            SLOT(s_selectedNodeChanged(SoFieldContainer*)));
    connect(&services, SIGNAL(selectedFieldChanged(SoField*)),
            SLOT(s_selectedFieldChanged(SoField*)));
}

HostBrowser::~HostBrowser() = default;

void HostBrowser::buildSceneView()
{
    m_sceneView->setObjectName(QStringLiteral("sceneView"));
    m_sceneView->setModel(&m_sceneModel);
    m_sceneView->setUniformRowHeights(true);
    m_sceneView->header()->setStretchLastSection(false);
    m_sceneView->header()->setSectionResizeMode(HostSceneModel::TypeColumn, QHeaderView::Stretch);
    followContents(*m_sceneView->header(),
                   {HostSceneModel::NameColumn, HostSceneModel::ParentsColumn});
    connect(m_sceneView->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
            SLOT(s_treeSelectionChanged()));
    addCopyAction(*m_sceneView, QStringLiteral("actionCopyNodePath"), SLOT(copyNodePath()));
}

void HostBrowser::buildFieldView()
{
    m_fieldView->setObjectName(QStringLiteral("fieldView"));
    m_fieldView->setModel(&m_fieldModel);
    m_fieldView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_fieldView->setSelectionMode(QAbstractItemView::SingleSelection);
    m_fieldView->setShowGrid(false);
    m_fieldView->setWordWrap(false);
    m_fieldView->setTabKeyNavigation(false);
    m_fieldView->verticalHeader()->hide();
    m_fieldView->verticalHeader()->setDefaultSectionSize(m_fieldView->fontMetrics().height() + 6);
    m_fieldView->horizontalHeader()->setHighlightSections(false);
    m_fieldView->horizontalHeader()->setSectionResizeMode(HostFieldModel::ValueColumn,
                                                          QHeaderView::Stretch);
    followContents(*m_fieldView->horizontalHeader(),
                   {HostFieldModel::NameColumn, HostFieldModel::TypeColumn,
                    HostFieldModel::DefaultColumn, HostFieldModel::IgnoredColumn,
                    HostFieldModel::ConnectedColumn});
    connect(m_fieldView->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
            SLOT(s_fieldSelectionChanged()));
    addCopyAction(*m_fieldView, QStringLiteral("actionCopyFieldPath"), SLOT(copyFieldPath()));
}

/** In the view's context menu, and on its keys while it has the keyboard. */
void HostBrowser::addCopyAction(QAbstractItemView& view, const QString& name, const char* slot)
{
    auto* action = new QAction(tr("Copy &path"), &view);
    action->setObjectName(name);
    action->setShortcut(QKeySequence(tr("Ctrl+Shift+C")));
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, SIGNAL(triggered()), this, slot);
    view.addAction(action);
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void HostBrowser::setRoot(SoNode* root)
{
    m_services.selectNode(nullptr);
    m_sceneModel.setRoot(root);
    m_sceneView->expandToDepth(1);
}

void HostBrowser::selectPath(const SoPath* path)
{
    if (!path) {
        m_services.selectNode(nullptr);
        return;
    }
    SoPath* shown = path->copy();
    shown->ref();
    QModelIndex index = m_sceneModel.index(*shown);
    while (!index.isValid() && HostFullPath::length(*shown) > 1) {
        shown->truncate(HostFullPath::length(*shown) - 1);
        index = m_sceneModel.index(*shown);
    }
    shown->unref();
    m_sceneView->setCurrentIndex(index);
    m_sceneView->scrollTo(index);
}

bool HostBrowser::select(const QString& text, QString* error)
{
    const HostNodePath::Target target = HostNodePath::split(text);
    SoNode* root = m_sceneModel.root();
    SoPath* path = root ? HostNodePath::find(*root, target.node, error) : nullptr;
    if (!path)
        return false;
    path->ref();
    SoField* field = HostFullPath::tail(*path)->getField(target.field.toUtf8().constData());
    const bool isThere = field || target.field.isEmpty();
    if (isThere)
        selectPath(path);
    else
        *error = tr("\"%1\" has no field \"%2\".").arg(target.node, target.field);
    if (field)
        m_services.selectField(field);
    path->unref();
    return isThere;
}

QString HostBrowser::nodePath() const
{
    const QModelIndexList rows = m_sceneView->selectionModel()->selectedRows();
    SoPath* path = rows.isEmpty() ? nullptr : m_sceneModel.path(rows.constFirst());
    if (!path)
        return {};
    path->ref();
    QString text = HostNodePath::text(*path);
    path->unref();
    return text;
}

void HostBrowser::copyNodePath() const
{
    const QString path = nodePath();
    if (!path.isEmpty())
        QApplication::clipboard()->setText(path);
}

void HostBrowser::copyFieldPath() const
{
    SbName name;
    SoNode* const node = m_services.selectedNode();
    if (node && node->getFieldName(m_services.selectedField(), name))
        QApplication::clipboard()->setText(nodePath() + QLatin1Char('.') +
                                           HostText::fromCoin(name));
}

void HostBrowser::s_treeSelectionChanged()
{
    if (m_following)
        return;
    const QModelIndexList rows = m_sceneView->selectionModel()->selectedRows();
    SoPath* path = rows.isEmpty() ? nullptr : m_sceneModel.path(rows.constFirst());
    if (!path) {
        m_services.selectNode(nullptr);
        return;
    }
    path->ref();
    m_services.selectNode(m_sceneModel.node(rows.constFirst()));
    emit nodeSelected(path);
    path->unref();
}

void HostBrowser::s_fieldSelectionChanged()
{
    if (m_following)
        return;
    const QModelIndexList rows = m_fieldView->selectionModel()->selectedRows();
    m_services.selectField(rows.isEmpty() ? nullptr : m_fieldModel.field(rows.constFirst().row()));
}

void HostBrowser::s_selectedNodeChanged(SoFieldContainer* node)
{
    QScopedValueRollback<bool> following(m_following, true);
    m_fieldModel.setNode(node ? m_services.selectedNode() : nullptr);
    if (!node) {
        m_sceneView->selectionModel()->clear();
        emit nodeSelected(nullptr);
    }
}

void HostBrowser::s_selectedFieldChanged(SoField* field)
{
    QScopedValueRollback<bool> following(m_following, true);
    const int row = field ? m_fieldModel.row(field) : -1;
    if (row < 0)
        m_fieldView->selectionModel()->clear();
    else
        m_fieldView->selectRow(row);
}
