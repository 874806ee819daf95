#pragma once

#include "TavrikHostExport.h"

#include <TvkEditor.h>

#include <QPointer>

class HostFieldList;
class HostServices;
class SoNode;

/** The host's own node editor: lists the fields of any node, of which one can be selected. */
class TAVRIKHOST_EXPORT HostNodeEditor final : public TvkEditor
{
    Q_OBJECT

public:
    /** The services are not owned. */
    explicit HostNodeEditor(HostServices& services);
    ~HostNodeEditor() override;

    void activate() override;
    void deactivate() override;
    void createWidgets() override;
    void releaseWidgets() override;

private slots:
    void s_nodeGone();

private:
    SoNode* editedNode() const;

    HostServices& m_services;
    QPointer<HostFieldList> m_list; ///< the editor's widget
};
