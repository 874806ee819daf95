#pragma once

#include "TavrikHostExport.h"

#include "lib/HostSceneModel.h"

#include <QObject>

class HostFieldList;
class HostServices;
class QTreeView;
class SoFieldContainer;
class SoNode;
class SoPath;

/** The scene tree and the list of the selected node's fields, tied to the host's selection. */
class TAVRIKHOST_EXPORT HostBrowser : public QObject
{
    Q_OBJECT

public:
    /** The services are not owned. */
    explicit HostBrowser(HostServices& services);
    ~HostBrowser() override;

    /** The two views, made without parent; whoever puts them into a window owns them. */
    QTreeView* sceneView() const { return m_sceneView; }
    HostFieldList* fieldList() const { return m_fieldList; }
    HostSceneModel& sceneModel() { return m_sceneModel; }

    /** Shows another scene, nothing of it selected; null shows none. */
    void setRoot(SoNode* root);

    /**
     * Selects a node and, where one is named, a field of it; see HostNodePath for the text. False
     * when there is no such node or field: then `error` says what there is not, and nothing
     * changes.
     */
    bool select(const QString& text, QString* error);

public slots:
    /** Selects the node at the path's end, or the nearest above it that the tree shows, and brings
     *  its row into view; null selects nothing. */
    void selectPath(const SoPath* path);

signals:
    /** What is selected in the tree now; null when nothing is. Only valid during the call. */
    void nodeSelected(const SoPath* path);

private slots:
    void copyNodePath() const;
    void copyFieldPath() const;
    void s_treeSelectionChanged();
    void s_selectedNodeChanged(SoFieldContainer* node);

private:
    void buildSceneView();
    /** Of the selected row of the tree; empty when there is none. */
    QString nodePath() const;

    HostServices& m_services;
    HostSceneModel m_sceneModel;
    QTreeView* const m_sceneView;     ///< not owned
    HostFieldList* const m_fieldList; ///< not owned
    bool m_following = false;         ///< the views follow the host's selection, not the user
};
