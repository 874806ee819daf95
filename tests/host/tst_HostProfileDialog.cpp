#include "lib/HostProfileDialog.h"

#include "lib/HostExtensions.h"
#include "lib/HostProfileList.h"

#include "tests/support/RecordingEditor.h"
#include "tests/support/RecordingExtension.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoSFFloat.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <memory>

namespace {
const char* const Docks = "Docks and tool bars";
const char* const Editors = "Editors";
} // namespace

class tst_HostProfileDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_dialog.reset(); }

    void itListsDocksAndEditorsByNameInGroups();
    void theBoxesShowWhatIsInTheProfile();
    void aClickOnABoxTakesAnExtensionOut();
    void theSpaceBarPutsAnEditorBack();
    void aGroupsBoxReachesAllOfTheGroup();
    void extensionsThatAreNotLoadedStayAsTheyWere();
    void anEmptyGroupIsNotShown();

    void okAcceptsAFreeName();
    void anEmptyNameIsToldAndKeepsTheDialogOpen();
    void aTakenNameIsToldAsPlainText();
    void typingClearsTheComplaint();
    void theProfileMayKeepItsName();
    void namesComeBackTidy();
    void aNameCannotBeTooLong();
    void forANameAloneTheListIsHidden();

private:
    void open(const HostProfile& profile);
    template <class Widget>
    Widget& child(const char* name) const
    {
        return *m_dialog->findChild<Widget*>(name);
    }
    QTreeWidgetItem& item(const char* group, const char* name = nullptr) const;
    void clickBox(QTreeWidgetItem& item) const;
    void type(const QString& name) const;
    void pressOk() const;

    QStringList m_log;
    RecordingExtension m_toolBar{"Tool Bar", m_log};
    RecordingExtension m_dock{"Dock", m_log};
    RecordingEditor m_float{"Float Editor", SoSFFloat::getClassTypeId(), m_log};
    RecordingPlugin m_plugin{"plugin", {&m_toolBar, &m_float, &m_dock}, m_log};
    HostExtensions m_extensions;
    std::unique_ptr<HostProfileList> m_profiles;
    HostProfile* m_profile = nullptr;
    std::unique_ptr<HostProfileDialog> m_dialog;
};

void tst_HostProfileDialog::init()
{
    if (m_extensions.all().empty()) {
        m_plugin.load();
        m_extensions.add(m_plugin);
    }
    m_profiles = std::make_unique<HostProfileList>();
    m_profile =
        &m_profiles->add("Mine", {{"/Dock", "gone/Dock"}, {"/Float Editor", "gone/Editor"}});
    open(*m_profile);
}

void tst_HostProfileDialog::open(const HostProfile& profile)
{
    m_dialog = std::make_unique<HostProfileDialog>(*m_profiles, &profile,
                                                   HostProfileDialog::NameAndContents);
    m_dialog->setContents(m_extensions, profile);
    m_dialog->show();
    QApplication::setActiveWindow(m_dialog.get());
}

QTreeWidgetItem& tst_HostProfileDialog::item(const char* group, const char* name) const
{
    const auto& tree = child<QTreeWidget>("contentsTree");
    QTreeWidgetItem* const top = tree.findItems(group, Qt::MatchExactly).value(0);
    if (!name)
        return *top;
    for (int i = 0; i < top->childCount(); ++i)
        if (top->child(i)->text(0) == QLatin1String(name))
            return *top->child(i);
    qFatal("there is no %s", name);
}

/** The box stands at the left end of its row's text. */
void tst_HostProfileDialog::clickBox(QTreeWidgetItem& item) const
{
    auto& tree = child<QTreeWidget>("contentsTree");
    const QRect row = tree.visualItemRect(&item);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(row.left() + 8, row.center().y()));
}

void tst_HostProfileDialog::type(const QString& name) const
{
    auto& line = child<QLineEdit>("nameLine");
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    QTest::keyClicks(&line, name);
}

void tst_HostProfileDialog::pressOk() const
{
    auto* buttons = m_dialog->findChild<QDialogButtonBox*>();
    QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void tst_HostProfileDialog::itListsDocksAndEditorsByNameInGroups()
{
    QCOMPARE(item(Docks).childCount(), 2);
    QCOMPARE(item(Docks).child(0)->text(0), QString("Dock"));
    QCOMPARE(item(Docks).child(1)->text(0), QString("Tool Bar"));
    QCOMPARE(item(Editors).childCount(), 1);
    QCOMPARE(item(Editors).child(0)->text(0), QString("Float Editor"));
}

void tst_HostProfileDialog::theBoxesShowWhatIsInTheProfile()
{
    QCOMPARE(item(Docks, "Dock").checkState(0), Qt::Checked);
    QCOMPARE(item(Docks, "Tool Bar").checkState(0), Qt::Unchecked);
    QCOMPARE(item(Docks).checkState(0), Qt::PartiallyChecked);
    QCOMPARE(item(Editors, "Float Editor").checkState(0), Qt::Unchecked);
    open(m_profiles->defaultProfile());
    QCOMPARE(item(Docks).checkState(0), Qt::Checked);
    QCOMPARE(item(Editors).checkState(0), Qt::Checked);
}

void tst_HostProfileDialog::aClickOnABoxTakesAnExtensionOut()
{
    clickBox(item(Docks, "Dock"));
    QVERIFY(!m_dialog->contents().extensions.contains("/Dock"));
    clickBox(item(Docks, "Tool Bar"));
    QVERIFY(m_dialog->contents().extensions.contains("/Tool Bar"));
}

void tst_HostProfileDialog::theSpaceBarPutsAnEditorBack()
{
    auto& tree = child<QTreeWidget>("contentsTree");
    tree.setFocus();
    tree.setCurrentItem(&item(Editors, "Float Editor"));
    QTest::keyClick(&tree, Qt::Key_Space);
    QVERIFY(!m_dialog->contents().withoutEditors.contains("/Float Editor"));
}

void tst_HostProfileDialog::aGroupsBoxReachesAllOfTheGroup()
{
    clickBox(item(Docks));
    QCOMPARE(m_dialog->contents().extensions, (QSet<QString>{"/Dock", "/Tool Bar", "gone/Dock"}));
    clickBox(item(Docks));
    QCOMPARE(m_dialog->contents().extensions, QSet<QString>{"gone/Dock"});
}

void tst_HostProfileDialog::extensionsThatAreNotLoadedStayAsTheyWere()
{
    clickBox(item(Docks, "Dock"));
    clickBox(item(Editors, "Float Editor"));
    QCOMPARE(m_dialog->contents().extensions, QSet<QString>{"gone/Dock"});
    QCOMPARE(m_dialog->contents().withoutEditors, QSet<QString>{"gone/Editor"});
}

void tst_HostProfileDialog::anEmptyGroupIsNotShown()
{
    HostProfileDialog dialog(*m_profiles, nullptr, HostProfileDialog::NameAndContents);
    dialog.setContents(HostExtensions(), *m_profile);
    const auto* tree = dialog.findChild<QTreeWidget*>("contentsTree");
    QVERIFY(tree->topLevelItem(0)->isHidden());
    QVERIFY(tree->topLevelItem(1)->isHidden());
}

void tst_HostProfileDialog::okAcceptsAFreeName()
{
    type("Free");
    pressOk();
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->name(), QString("Free"));
}

void tst_HostProfileDialog::anEmptyNameIsToldAndKeepsTheDialogOpen()
{
    type(" ");
    pressOk();
    QVERIFY(m_dialog->isVisible());
    QVERIFY(child<QLabel>("complaintLabel").isVisible());
    QCOMPARE(child<QLabel>("complaintLabel").text(), QString("A profile needs a name."));
    QVERIFY(child<QLineEdit>("nameLine").hasFocus());
}

void tst_HostProfileDialog::aTakenNameIsToldAsPlainText()
{
    m_profiles->add("<b>bold</b>", {});
    type("<b>bold</b>");
    QTest::keyClick(&child<QLineEdit>("nameLine"), Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
    const auto& label = child<QLabel>("complaintLabel");
    QCOMPARE(label.text(), QString("There is a profile \"<b>bold</b>\" already."));
    QCOMPARE(label.textFormat(), Qt::PlainText);
}

void tst_HostProfileDialog::typingClearsTheComplaint()
{
    type("default");
    pressOk();
    QVERIFY(child<QLabel>("complaintLabel").isVisible());
    QTest::keyClicks(&child<QLineEdit>("nameLine"), "s");
    QVERIFY(!child<QLabel>("complaintLabel").isVisible());
}

void tst_HostProfileDialog::theProfileMayKeepItsName()
{
    QCOMPARE(child<QLineEdit>("nameLine").text(), QString("Mine"));
    pressOk();
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void tst_HostProfileDialog::namesComeBackTidy()
{
    type("  two   words ");
    pressOk();
    QCOMPARE(m_dialog->name(), QString("two words"));
}

void tst_HostProfileDialog::aNameCannotBeTooLong()
{
    type(QString(150, 'x'));
    QCOMPARE(m_dialog->name(), QString(100, 'x'));
}

void tst_HostProfileDialog::forANameAloneTheListIsHidden()
{
    HostProfileDialog dialog(*m_profiles, m_profile, HostProfileDialog::NameOnly);
    dialog.show();
    QVERIFY(!dialog.findChild<QTreeWidget*>("contentsTree")->isVisible());
    QVERIFY(dialog.findChild<QLineEdit*>("nameLine")->isVisible());
}

TAVRIK_TEST_MAIN(tst_HostProfileDialog)
#include "tst_HostProfileDialog.moc"
