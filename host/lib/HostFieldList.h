#pragma once

#include "TavrikHostExport.h"

#include "lib/HostFieldModel.h"

#include <QWidget>

class HostServices;
class QLineEdit;
class QTableView;

/**
 * The list of a node's fields below a line that filters it. A field that is clicked, reached with
 * the arrow keys, double-clicked or chosen with Return becomes the one that the host has selected;
 * and the list follows when another is selected elsewhere.
 */
class TAVRIKHOST_EXPORT HostFieldList : public QWidget
{
    Q_OBJECT

public:
    /** The services are not owned. */
    explicit HostFieldList(HostServices& services, QWidget* parent = nullptr);
    ~HostFieldList() override;

    /** Lists another node's fields; null lists none. Not referenced. */
    void setNode(SoNode* node);
    const HostFieldModel& model() const { return m_model; }

    QSize sizeHint() const override;

signals:
    /** The node whose fields were listed has died. */
    void nodeGone();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void s_filterChanged(const QString& text);
    void s_selectionChanged();
    void s_chosen(const QModelIndex& index);
    void s_modelReset();
    void updateHint();
    void s_selectedFieldChanged(SoField* field);

private:
    void buildFilter();
    void buildView();
    void buildColumns();
    bool keyPressed(const QObject* watched, int key);
    void enterView();
    void showSelected(const SoField* field);

    HostServices& m_services;
    HostFieldModel m_model;
    QLineEdit* const m_filter;
    QTableView* const m_view;
    bool m_following = false; ///< the view follows the host's selection, not the user
};
