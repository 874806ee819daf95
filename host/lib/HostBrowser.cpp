#include "lib/HostBrowser.h"

#include "lib/HostCopyPath.h"
#include "lib/HostFieldList.h"
#include "lib/HostFullPath.h"
#include "lib/HostNodePath.h"
#include "lib/HostServices.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoNode.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTreeView>

HostBrowser::HostBrowser(HostServices& services)
    : m_services(services), m_sceneView(new QTreeView), m_fieldList(new HostFieldList(services))
{
    buildSceneView();
    connect(&services, SIGNAL(selectedNodeChanged(SoFieldContainer*)),
            SLOT(s_selectedNodeChanged(SoFieldContainer*)));
    connect(&services, SIGNAL(fieldPathWanted()), SLOT(copyFieldPath()));
}

HostBrowser::~HostBrowser() = default;

void HostBrowser::buildSceneView()
{
    m_sceneView->setObjectName(QStringLiteral("sceneView"));
    m_sceneView->setModel(&m_sceneModel);
    m_sceneView->setUniformRowHeights(true);
    QHeaderView& header = *m_sceneView->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(HostSceneModel::TypeColumn, QHeaderView::Stretch);
    header.setSectionResizeMode(HostSceneModel::NameColumn, QHeaderView::ResizeToContents);
    header.setSectionResizeMode(HostSceneModel::ParentsColumn, QHeaderView::ResizeToContents);
    connect(m_sceneView->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
            SLOT(s_treeSelectionChanged()));
    HostCopyPath::addTo(*m_sceneView, QStringLiteral("actionCopyNodePath"), this,
                        SLOT(copyNodePath()));
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

void HostBrowser::s_selectedNodeChanged(SoFieldContainer* node)
{
    QScopedValueRollback<bool> following(m_following, true);
    m_fieldList->setNode(node ? m_services.selectedNode() : nullptr);
    if (!node) {
        m_sceneView->selectionModel()->clear();
        emit nodeSelected(nullptr);
    }
}
