#pragma once

#include "lib/HostUndoStack.h"

#include <TvkServices.h>

#include <Inventor/sensors/SoNodeSensor.h>

class SoNode;

/**
 * The host's selection and undo stack. The selection holds no reference: when the selected node
 * dies it is cleared at once, and the signals that say so follow from the event loop, when the
 * death is over and nobody can touch the dying fields any more. Only while it is being announced is
 * a node referenced, so that a listener who thereby ends its life does not take it from the next
 * one.
 */
class TAVRIKHOST_EXPORT HostServices : public TvkServices
{
    Q_OBJECT

public:
    HostServices();
    ~HostServices() override;

    void pushCommand(TvkCommand* command) override;

    /**
     * Selects a node, or none with null; says so also when it is the same. If a field was selected,
     * that it no longer is comes first.
     */
    void selectNode(SoNode* node);
    /**
     * Selects a field of the selected node, or none with null; says so also when it is the same. A
     * field that is none of the selected node's counts as null: it might be a dead one's.
     */
    void selectField(SoField* field);
    /** Says once more what is selected, for those who have begun to listen since. */
    void announceSelection();
    SoNode* selectedNode() const { return m_node; }
    SoField* selectedField() const { return m_field; }

    HostUndoStack& undoStack() { return m_undoStack; }

public slots:
    /** For whoever shows fields: has the path of the selected one copied. */
    void copyFieldPath() { emit fieldPathWanted(); }

signals:
    void fieldPathWanted();

private slots:
    /** Announces what has died since it was announced. */
    void announceDeath();

private:
    static void nodeDied(void* services, SoSensor*);
    bool isOwnField(const SoField* field) const;
    void announceNode();
    void announceField();

    HostUndoStack m_undoStack;
    SoNodeSensor m_nodeWatch;
    SoNode* m_node = nullptr;   ///< not owned
    SoField* m_field = nullptr; ///< not owned
    // Whether the listeners have last heard of something, which may have died since.
    bool m_nodeAnnounced = false;
    bool m_fieldAnnounced = false;
};
