#include "tests/support/TestMain.h"

#include "lib/HostPluginLoader.h"
#include "lib/HostPluginsManager.h"
#include "lib/HostServices.h"
#include "lib/HostShell.h"

#include <TvkPlugin.h>

#include <Inventor/VRMLnodes/SoVRMLTimeSensor.h>

#include <QDateTimeEdit>
#include <QDockWidget>
#include <QMainWindow>

/** The plug-in with one more editor, beside the tool's own, in a host. */
class tst_TimeEditor : public QObject
{
    Q_OBJECT

private:
    struct Host
    {
        Host()
        {
            manager.adopt(*defaults.load(QStringLiteral(TVKDEFAULTS_FILE)));
            manager.adopt(*example.load(QStringLiteral(TIMEEDITOR_FILE)));
            node->ref();
            node->startTime = SbTime(86400.5);
            window.show();
            services.selectNode(node);
            services.selectField(&node->startTime);
        }
        ~Host()
        {
            services.selectNode(nullptr);
            services.undoStack().clear();
            manager.release(*example.plugin());
            manager.release(*defaults.plugin());
            node->unref();
        }
        Host(const Host&) = delete;
        Host& operator=(const Host&) = delete;

        QDateTimeEdit* edit() const { return window.findChild<QDateTimeEdit*>("dateTimeEdit"); }

        QMainWindow window;
        HostServices services;
        HostShell shell{window};
        HostPluginLoader defaults;
        HostPluginLoader example;
        HostPluginsManager manager;
        SoVRMLTimeSensor* node = new SoVRMLTimeSensor;
    };

private slots:
    void isPreferredToTheLineForAnyField()
    {
        Host host;
        QVERIFY(host.edit());
        QCOMPARE(host.edit()->text(), QStringLiteral("1970-01-02 00:00:00.500"));
    }

    void anEditIsOneEntryThatUndoTakesBack()
    {
        Host host;
        host.edit()->setDateTime(QDateTime({1970, 1, 3}, {0, 0}, Qt::UTC));
        QTest::keyClick(host.edit(), Qt::Key_Return);
        QCOMPARE(host.node->startTime.getValue().getValue(), 172800.0);
        QCOMPARE(host.services.undoStack().stack().count(), 1);
        host.services.undoStack().stack().undo();
        QCOMPARE(host.node->startTime.getValue().getValue(), 86400.5);
        SoDB::getSensorManager()->processDelayQueue(TRUE);
        QCOMPARE(host.edit()->text(), QStringLiteral("1970-01-02 00:00:00.500"));
    }

    void lookingAtATimeChangesNothing()
    {
        Host host;
        host.node->startTime = SbTime(1.23456789);
        SoDB::getSensorManager()->processDelayQueue(TRUE);
        host.edit()->setFocus();
        QTest::keyClick(host.edit(), Qt::Key_Return);
        QCOMPARE(host.node->startTime.getValue().getValue(), 1.23456789);
        QCOMPARE(host.services.undoStack().stack().count(), 0);
    }
};

TAVRIK_TEST_MAIN(tst_TimeEditor)
#include "tst_TimeEditor.moc"
