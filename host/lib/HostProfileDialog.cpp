#include "lib/HostProfileDialog.h"

#include "lib/HostExtensions.h"
#include "lib/HostProfileList.h"
#include "lib/HostProfileName.h"
#include "lib/HostText.h"

#include <TvkExtension.h>
#include <TvkPlugin.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int NameLimit = 100; ///< of characters, so that the tool bar stays a tool bar
constexpr QSize TreeSize(340, 360);

QString origin(const HostExtension& one)
{
    return HostProfileDialog::tr("%1\nFrom the plug-in %2")
        .arg(HostText::fromCoin(one.extension->getDescription()),
             HostText::fromCoin(one.plugin->getName()));
}

/** Files each extension of a group under the chosen ones or under the others. */
void collect(const QTreeWidgetItem& group, QSet<QString>& chosen, QSet<QString>& others)
{
    for (int i = 0; i < group.childCount(); ++i) {
        const QTreeWidgetItem& item = *group.child(i);
        const QString key = item.data(0, KeyRole).toString();
        (item.checkState(0) == Qt::Checked ? chosen : others).insert(key);
    }
}

/** A style draws the boxes' frames a shade darker than a window: in a dark theme, as the list. */
void makeBoxesSeen(QWidget& list)
{
    QPalette palette = list.palette();
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    palette.setColor(QPalette::Window,
                     QColor((base.red() + text.red()) / 2, (base.green() + text.green()) / 2,
                            (base.blue() + text.blue()) / 2));
    list.setPalette(palette);
}

} // namespace

HostProfileDialog::HostProfileDialog(const HostProfileList& profiles, const HostProfile* profile,
                                     Part part, QWidget* parent)
    : QDialog(parent), m_profiles(profiles), m_profile(profile), m_nameLine(new QLineEdit(this)),
      m_complaintLabel(new QLabel(this)), m_contentsTree(new QTreeWidget(this)),
      m_docks(addGroup(tr("Docks and tool bars"))), m_editors(addGroup(tr("Editors")))
{
    setObjectName(QStringLiteral("profileDialog"));
    build();
    m_contentsTree->setVisible(part == NameAndContents);
    if (profile)
        setName(profile->name());
}

void HostProfileDialog::build()
{
    m_nameLine->setObjectName(QStringLiteral("nameLine"));
    m_nameLine->setMaxLength(NameLimit);
    connect(m_nameLine, SIGNAL(textEdited(QString)), SLOT(clearComplaint()));
    m_complaintLabel->setObjectName(QStringLiteral("complaintLabel"));
    m_complaintLabel->setTextFormat(Qt::PlainText);
    m_complaintLabel->setWordWrap(true);
    m_complaintLabel->hide();
    m_contentsTree->setObjectName(QStringLiteral("contentsTree"));
    m_contentsTree->setHeaderHidden(true);
    m_contentsTree->setMinimumSize(TreeSize);
    makeBoxesSeen(*m_contentsTree);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, SIGNAL(accepted()), SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), SLOT(reject()));
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Name:"), m_nameLine);
    form->addRow(m_complaintLabel);
    form->addRow(m_contentsTree);
    form->addRow(buttons);
}

QTreeWidgetItem* HostProfileDialog::addGroup(const QString& title)
{
    auto* group = new QTreeWidgetItem(m_contentsTree, {title});
    group->setFlags(group->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    group->setExpanded(true);
    return group;
}

void HostProfileDialog::setName(const QString& name)
{
    m_nameLine->setText(name);
    m_nameLine->selectAll();
}

void HostProfileDialog::setContents(const HostExtensions& extensions, const HostProfile& chosen)
{
    m_contents = chosen.contents;
    for (const HostExtension& one : extensions.all()) {
        const bool checked =
            one.isEditor ? chosen.hasEditor(one.key) : chosen.hasExtension(one.key);
        addExtension(one.isEditor ? *m_editors : *m_docks, one.key,
                     HostText::fromCoin(one.extension->getName()), origin(one), checked);
    }
    for (QTreeWidgetItem* group : {m_docks, m_editors}) {
        group->sortChildren(0, Qt::AscendingOrder);
        group->setHidden(group->childCount() == 0);
    }
}

void HostProfileDialog::addExtension(QTreeWidgetItem& group, const QString& key,
                                     const QString& name, const QString& toolTip, bool checked)
{
    auto* item = new QTreeWidgetItem(&group, {name});
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
    item->setData(0, KeyRole, key);
    item->setToolTip(0, toolTip);
}

QString HostProfileDialog::name() const
{
    return HostProfileName::tidy(m_nameLine->text());
}

HostProfileContents HostProfileDialog::contents() const
{
    QSet<QString> docks;
    QSet<QString> otherDocks;
    QSet<QString> editors;
    QSet<QString> otherEditors;
    collect(*m_docks, docks, otherDocks);
    collect(*m_editors, editors, otherEditors);
    HostProfileContents contents = m_contents;
    contents.extensions.unite(docks).subtract(otherDocks);
    contents.withoutEditors.unite(otherEditors).subtract(editors);
    return contents;
}

void HostProfileDialog::accept()
{
    const QString complaint = m_profiles.complaint(m_nameLine->text(), m_profile);
    m_complaintLabel->setText(complaint);
    m_complaintLabel->setVisible(!complaint.isEmpty());
    if (complaint.isEmpty()) {
        QDialog::accept();
        return;
    }
    m_nameLine->setFocus();
    m_nameLine->selectAll();
}

void HostProfileDialog::clearComplaint()
{
    m_complaintLabel->hide();
}
