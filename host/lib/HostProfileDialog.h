#pragma once

#include "TavrikHostExport.h"

#include "lib/HostProfile.h"

#include <QDialog>

class HostExtensions;
class HostProfileList;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/** Asks for a profile's name and for what is in it: a check box for each extension. */
class TAVRIKHOST_EXPORT HostProfileDialog : public QDialog
{
    Q_OBJECT

public:
    /** What the list shows of the extensions. */
    enum Part { NameAndContents, NameOnly };

    /**
     * Neither is owned. The profile, if there is one already, is the one that may keep its name.
     */
    HostProfileDialog(const HostProfileList& profiles, const HostProfile* profile, Part part,
                      QWidget* parent = nullptr);

    /** The name to begin with. */
    void setName(const QString& name);
    /** The extensions to choose from, and those of them that are chosen to begin with. */
    void setContents(const HostExtensions& extensions, const HostProfile& chosen);

    /** The name as it was typed; once accepted it is free. */
    QString name() const;
    /** What is chosen; extensions that are not loaded are as they were. */
    HostProfileContents contents() const;

public slots:
    /** Says what is wrong with the name and stays open, if something is. */
    void accept() override;

private slots:
    void clearComplaint();

private:
    void build();
    QTreeWidgetItem* addGroup(const QString& title);
    void addExtension(QTreeWidgetItem& group, const QString& key, const QString& name,
                      const QString& toolTip, bool checked);

    const HostProfileList& m_profiles;
    const HostProfile* const m_profile;
    QLineEdit* m_nameLine;
    QLabel* m_complaintLabel;
    QTreeWidget* m_contentsTree;
    QTreeWidgetItem* m_docks;
    QTreeWidgetItem* m_editors;
    HostProfileContents m_contents; ///< to begin with
};
