#include "tests/host/DockExtension.h"
#include "tests/host/WindowOnCone.h"
#include "tests/support/ModalDialog.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTreeWidget>

namespace {

void type(const QDialog& dialog, const QString& name)
{
    auto* line = dialog.findChild<QLineEdit*>("nameLine");
    line->selectAll();
    QTest::keyClicks(line, name);
}

void press(const QDialog& dialog, QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

/** Takes the tick off an extension's box by keys. */
void untick(const QDialog& dialog, const char* name)
{
    auto* tree = dialog.findChild<QTreeWidget*>("contentsTree");
    tree->setFocus();
    tree->setCurrentItem(tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0));
    QTest::keyClick(tree, Qt::Key_Space);
}

} // namespace

class tst_HostProfilesMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_session.finish(); }

    void itListsTheProfilesWithARadioMarkAtTheActiveOne();
    void clickingAProfileChoosesIt();
    void anAmpersandInANameIsShown();
    void theDefaultProfileCanOnlyBeDuplicated();

    void newMakesAProfileAndChoosesIt();
    void cancellingMakesNone();
    void newBeginsWithEverythingAndAFreeName();
    void duplicatingKeepsWhatIsInTheProfile();
    void renamingKeepsWhatIsInTheProfile();
    void aTakenNameIsRefusedUntilItIsChanged();
    void editingTakesADockOut();
    void deletingAsksFirst();
    void deletingGoesBackToDefault();

private:
    HostPluginsManager& manager() { return m_session->pluginsManager(); }
    QString active() { return manager().activeProfile().name(); }
    QMenu& menu() { return *m_session.child<QMenu>("menuProfiles"); }
    /** Opens the menu and clicks the entry of this object name, or else of this text. */
    void click(const char* entry);
    QAction* find(const char* entry);

    QStringList m_log;
    DockExtension m_right{"right", Qt::RightDockWidgetArea, m_log};
    DockExtension m_bottom{"bottom", Qt::BottomDockWidgetArea, m_log};
    RecordingPlugin m_plugin{"plugin", {&m_right, &m_bottom}, m_log};
    WindowOnCone m_session;
};

void tst_HostProfilesMenu::init()
{
    m_session.setPlugin(&m_plugin);
    m_session.start();
}

QAction* tst_HostProfilesMenu::find(const char* entry)
{
    for (QAction* action : menu().actions())
        if (action->objectName() == QLatin1String(entry) || action->text() == QLatin1String(entry))
            return action;
    return nullptr;
}

void tst_HostProfilesMenu::click(const char* entry)
{
    QMenuBar& bar = *m_session->menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                      bar.actionGeometry(menu().menuAction()).center());
    QVERIFY(menu().isVisible());
    QAction* const action = find(entry);
    QVERIFY2(action, entry);
    QTest::mouseClick(&menu(), Qt::LeftButton, Qt::NoModifier,
                      menu().actionGeometry(action).center());
}

void tst_HostProfilesMenu::itListsTheProfilesWithARadioMarkAtTheActiveOne()
{
    manager().createProfile("Mine", {});
    emit menu().aboutToShow();
    QVERIFY(find("Mine")->isChecked());
    QVERIFY(!find("Default")->isChecked());
    QVERIFY(find("Mine")->actionGroup()->isExclusive());
    QCOMPARE(find("Mine")->actionGroup(), find("Default")->actionGroup());
}

void tst_HostProfilesMenu::clickingAProfileChoosesIt()
{
    manager().createProfile("Mine", {{"/right"}, {}});
    click("Default");
    QCOMPARE(active(), QString("Default"));
    QVERIFY(m_bottom.isActive());
    click("Mine");
    QCOMPARE(active(), QString("Mine"));
    QVERIFY(!m_bottom.isActive());
}

void tst_HostProfilesMenu::anAmpersandInANameIsShown()
{
    manager().createProfile("Look & See", {});
    manager().chooseProfile(manager().profiles().defaultProfile());
    click("Look && See");
    QCOMPARE(active(), QString("Look & See"));
}

void tst_HostProfilesMenu::theDefaultProfileCanOnlyBeDuplicated()
{
    emit menu().aboutToShow();
    for (const char* entry : {"actionRenameProfile", "actionEditProfile", "actionDeleteProfile"})
        QVERIFY2(!find(entry)->isEnabled(), entry);
    QVERIFY(find("actionDuplicateProfile")->isEnabled());
    manager().createProfile("Mine", {});
    emit menu().aboutToShow();
    for (const char* entry : {"actionRenameProfile", "actionEditProfile", "actionDeleteProfile"})
        QVERIFY2(find(entry)->isEnabled(), entry);
}

void tst_HostProfilesMenu::newMakesAProfileAndChoosesIt()
{
    ModalDialog user([](QDialog& dialog) {
        type(dialog, "Mine");
        untick(dialog, "bottom");
        press(dialog, QDialogButtonBox::Ok);
    });
    click("actionNewProfile");
    QVERIFY(user.wasUp());
    QCOMPARE(active(), QString("Mine"));
    QVERIFY(m_right.isActive());
    QVERIFY(!m_bottom.isActive());
}

void tst_HostProfilesMenu::cancellingMakesNone()
{
    ModalDialog user([](QDialog& dialog) {
        type(dialog, "Mine");
        press(dialog, QDialogButtonBox::Cancel);
    });
    click("actionNewProfile");
    QVERIFY(user.wasUp());
    QCOMPARE(active(), QString("Default"));
    QCOMPARE(manager().profiles().all().size(), std::size_t(1));
}

void tst_HostProfilesMenu::newBeginsWithEverythingAndAFreeName()
{
    manager().createProfile("Profile", {});
    ModalDialog user([](QDialog& dialog) { press(dialog, QDialogButtonBox::Ok); });
    click("actionNewProfile");
    QVERIFY(user.wasUp());
    QCOMPARE(active(), QString("Profile 2"));
    QVERIFY(m_right.isActive());
    QVERIFY(m_bottom.isActive());
}

void tst_HostProfilesMenu::duplicatingKeepsWhatIsInTheProfile()
{
    manager().createProfile("Mine", {{"/right", "gone/dock"}, {"gone/editor"}});
    const HostProfileContents contents = manager().activeProfile().contents;
    ModalDialog user([](QDialog& dialog) { press(dialog, QDialogButtonBox::Ok); });
    click("actionDuplicateProfile");
    QVERIFY(user.wasUp());
    QCOMPARE(active(), QString("Copy of Mine"));
    QVERIFY(manager().activeProfile().contents == contents);
    QVERIFY(manager().profiles().find(QString("Mine")));
}

void tst_HostProfilesMenu::renamingKeepsWhatIsInTheProfile()
{
    manager().createProfile("Mine", {{"/right"}, {}});
    const TvkProfile* const profile = manager().getActiveProfile();
    ModalDialog user([](QDialog& dialog) {
        type(dialog, "Yours");
        QTest::keyClick(dialog.findChild<QLineEdit*>("nameLine"), Qt::Key_Return);
    });
    click("actionRenameProfile");
    QVERIFY(user.wasUp());
    QCOMPARE(active(), QString("Yours"));
    QCOMPARE(manager().getActiveProfile(), profile);
    QCOMPARE(profile->getName().getString(), "Yours");
    QVERIFY(manager().activeProfile().hasExtension("/right"));
}

void tst_HostProfilesMenu::aTakenNameIsRefusedUntilItIsChanged()
{
    QString complaint;
    ModalDialog user([&](QDialog& dialog) {
        type(dialog, "default");
        press(dialog, QDialogButtonBox::Ok);
        complaint = dialog.findChild<QLabel*>("complaintLabel")->text();
        type(dialog, "defaults");
        press(dialog, QDialogButtonBox::Ok);
    });
    click("actionNewProfile");
    QCOMPARE(complaint, QString("There is a profile \"Default\" already."));
    QCOMPARE(active(), QString("defaults"));
}

void tst_HostProfilesMenu::editingTakesADockOut()
{
    manager().createProfile("Mine", {{"/right", "/bottom"}, {}});
    ModalDialog user([](QDialog& dialog) {
        untick(dialog, "bottom");
        press(dialog, QDialogButtonBox::Ok);
    });
    click("actionEditProfile");
    QVERIFY(user.wasUp());
    QVERIFY(!m_bottom.isActive());
    QVERIFY(m_right.isActive());
    QCOMPARE(active(), QString("Mine"));
}

void tst_HostProfilesMenu::deletingAsksFirst()
{
    manager().createProfile("<b>Mine</b>", {});
    QString question;
    ModalDialog user([&](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        question = box.text();
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QTest::keyClick(&box, Qt::Key_Return); // the default button's
    });
    click("actionDeleteProfile");
    QCOMPARE(question, QString("Delete the profile \"<b>Mine</b>\"?"));
    QCOMPARE(active(), QString("<b>Mine</b>"));
}

void tst_HostProfilesMenu::deletingGoesBackToDefault()
{
    manager().createProfile("Mine", {});
    WindowOnCone::answerNextBox(QMessageBox::Yes);
    click("actionDeleteProfile");
    QCOMPARE(active(), QString("Default"));
    QVERIFY(!manager().profiles().find(QString("Mine")));
    QVERIFY(m_bottom.isActive());
}

TAVRIK_TEST_MAIN(tst_HostProfilesMenu)
#include "tst_HostProfilesMenu.moc"
