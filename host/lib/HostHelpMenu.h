#pragma once

#include "TavrikHostExport.h"

#include <QMenu>

/** The Help menu: what the program is, and its manual where there is one. */
class TAVRIKHOST_EXPORT HostHelpMenu : public QMenu
{
    Q_OBJECT

public:
    explicit HostHelpMenu(QWidget* parent = nullptr);

    /** Offers the first of these files that exists. */
    void setManual(const QStringList& candidates);

private slots:
    void about();
    void openManual();

private:
    QString m_manual;
};
