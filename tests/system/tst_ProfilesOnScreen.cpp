#include "tests/support/ComboChoice.h"
#include "tests/support/ModalDialog.h"
#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include <QDialogButtonBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QTreeWidget>

/** Profiles as a user meets them: the tool bar of the plug-in and the menu of the window. */
class tst_ProfilesOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_session.start(); }
    void cleanup() { m_session.finish(); }

    void theToolBarShowsTheActiveProfile();
    void choosingInTheToolBarSwitchesTheDocks();
    void keepsTheListGrowingInTheWindowToo();
    void choosingAProfileWithoutTheToolBarTakesItAway();
    void everythingSurvivesARestart();

private:
    QDockWidget* editorDock() const
    {
        return m_session.visible<QDockWidget>("TvkFieldEditorDockWin");
    }
    QComboBox* combo() const { return m_session.visible<QComboBox>("profileCombo"); }
    QString active() const { return m_session.window().pluginsManager().activeProfile().name(); }
    /** Opens the menu and clicks an entry by its object name or its text. */
    void clickInMenu(const char* entry) const;
    /** Makes a profile in the dialog, without one extension. */
    void create(const QString& name, const char* without) const;
    static QStringList texts(const QComboBox& combo)
    {
        QStringList list;
        for (int i = 0; i < combo.count(); ++i)
            list << combo.itemText(i);
        return list;
    }

    SessionOnScreen m_session;
};

void tst_ProfilesOnScreen::clickInMenu(const char* entry) const
{
    QMenuBar& bar = *m_session.window().menuBar();
    auto& menu = *m_session.window().findChild<QMenu*>("menuProfiles");
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                      bar.actionGeometry(menu.menuAction()).center());
    QTRY_VERIFY(menu.isVisible());
    for (QAction* action : menu.actions()) {
        if (action->objectName() == QLatin1String(entry) ||
            action->text() == QLatin1String(entry)) {
            QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                              menu.actionGeometry(action).center());
            return;
        }
    }
    QFAIL(entry);
}

void tst_ProfilesOnScreen::create(const QString& name, const char* without) const
{
    ModalDialog user([&](QDialog& dialog) {
        auto* line = dialog.findChild<QLineEdit*>("nameLine");
        line->selectAll();
        QTest::keyClicks(line, name);
        auto* tree = dialog.findChild<QTreeWidget*>("contentsTree");
        tree->setCurrentItem(
            tree->findItems(without, Qt::MatchExactly | Qt::MatchRecursive).value(0));
        QTest::keyClick(tree, Qt::Key_Space);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    clickInMenu("actionNewProfile");
    QVERIFY(user.wasUp());
    QCOMPARE(active(), name);
}

void tst_ProfilesOnScreen::theToolBarShowsTheActiveProfile()
{
    QVERIFY(combo());
    QCOMPARE(texts(*combo()), QStringList{"Default"});
    create("No editor", "Field Editor");
    QCOMPARE(texts(*combo()), (QStringList{"Default", "No editor"}));
    QCOMPARE(combo()->currentText(), QString("No editor"));
}

void tst_ProfilesOnScreen::choosingInTheToolBarSwitchesTheDocks()
{
    m_session.select("Move", "translation");
    QVERIFY(editorDock());
    create("No editor", "Field Editor");
    QVERIFY(!editorDock());
    clickRow(*combo(), 0);
    QCOMPARE(active(), QString("Default"));
    QVERIFY(editorDock());
    QCOMPARE(m_session.vectorLines().size(), 3);
    QCOMPARE(m_session.window().services().selectedField(),
             m_session.window().services().selectedNode()->getField("translation"));
}

void tst_ProfilesOnScreen::keepsTheListGrowingInTheWindowToo()
{
    create("No editor", "Field Editor");
    clickRow(*combo(), 0);
    QCOMPARE(texts(*combo()), (QStringList{"Default", "No editor", "Default"}));
    clickRow(*combo(), 1);
    QCOMPARE(texts(*combo()),
             (QStringList{"Default", "No editor", "Default", "Default", "No editor"}));
    QCOMPARE(active(), QString("No editor"));
}

void tst_ProfilesOnScreen::choosingAProfileWithoutTheToolBarTakesItAway()
{
    create("Bare", "Profile Selector");
    QVERIFY(!combo());
    clickInMenu("Default");
    QVERIFY(combo());
    clickRow(*combo(), 1);
    QCOMPARE(active(), QString("Bare"));
    QVERIFY(!combo());
    QTest::qWait(300); // for what the list's own events still do
    clickInMenu("Default");
    QCOMPARE(texts(*combo()), (QStringList{"Default", "Bare"}));
    QCOMPARE(combo()->currentText(), QString("Default"));
}

void tst_ProfilesOnScreen::everythingSurvivesARestart()
{
    create("No editor", "Field Editor");
    auto* bar = m_session.visible<QToolBar>("TvkProfileSelectorExtension");
    m_session.window().addToolBar(Qt::BottomToolBarArea, bar);
    QVERIFY(m_session.window().close());
    m_session.restart();
    QCOMPARE(active(), QString("No editor"));
    QCOMPARE(combo()->currentText(), QString("No editor"));
    bar = m_session.visible<QToolBar>("TvkProfileSelectorExtension");
    QCOMPARE(m_session.window().toolBarArea(bar), Qt::BottomToolBarArea);
    m_session.select("Move", "translation");
    QVERIFY(!editorDock());
    clickRow(*combo(), 0);
    QVERIFY(editorDock());
    QCOMPARE(m_session.window().toolBarArea(bar), Qt::TopToolBarArea);
}

TAVRIK_TEST_MAIN(tst_ProfilesOnScreen)
#include "tst_ProfilesOnScreen.moc"
