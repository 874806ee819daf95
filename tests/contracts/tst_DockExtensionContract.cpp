#include "tests/contracts/DockExtensionRows.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingPluginsManager.h"
#include "tests/support/TestMain.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

using Member = DockExtensionRow;

QWidgetList withoutParent()
{
    QWidgetList widgets;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (!widget->parent())
            widgets << widget;
    return widgets;
}

using Step = void (TvkExtension::*)();
const std::pair<const char*, Step> s_steps[] = {
    {"activate", &TvkExtension::activate},
    {"show", &TvkExtension::show},
    {"hide", &TvkExtension::hide},
    {"deactivate", &TvkExtension::deactivate},
};
constexpr int s_stepCount = 4;

/** An extension on a recording host; what it builds is found among the windows of the process. */
class Rig
{
public:
    explicit Rig(const Member& member) : m_member(member), m_extension(member.make()) {}

    TvkExtension* operator->() { return m_extension.get(); }
    TvkExtension& operator*() { return *m_extension; }

    void createWidgets()
    {
        const QWidgetList before = withoutParent();
        m_extension->createWidgets();
        QWidgetList made = withoutParent();
        for (QWidget* old : before)
            made.removeAll(old);
        if (made.size() == 1)
            widget = made.first();
    }

    QStringList activation() const
    {
        QStringList calls = {QStringLiteral("add%1 \"%2\" %3")
                                 .arg(QLatin1String(m_member.kind), QLatin1String(m_member.title))
                                 .arg(m_member.area),
                             QStringLiteral("registerExtension \"%1\" true").arg(name())};
        if (m_member.registersFirst)
            std::reverse(calls.begin(), calls.end());
        return calls;
    }
    QStringList deactivation() const
    {
        return {QStringLiteral("remove%1 \"%2\"")
                    .arg(QLatin1String(m_member.kind), QLatin1String(m_member.title)),
                QStringLiteral("unregisterExtension \"%1\"").arg(name())};
    }
    QStringList takeCalls() { return std::exchange(host.shell.calls, {}); }

    RecordingHost host;
    RecordingPluginsManager profiles{"Default"};
    QPointer<QWidget> widget; ///< its dock or tool bar

private:
    QString name() const { return QString::fromUtf8(m_extension->getName().getString()); }

    const Member& m_member;
    const std::unique_ptr<TvkExtension> m_extension;
};

} // namespace

/**
 * What holds for every extension with a dock or a tool bar, one row each: what it asks of the
 * host's window, and that it survives its lifecycle in every order that the host may choose.
 */
class tst_DockExtensionContract : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhoItIs_data() { addRows(); }
    void tellsWhoItIs();
    void makingItBuildsNoWidgets_data() { addRows(); }
    void makingItBuildsNoWidgets();
    void createWidgetsBuildsOneHiddenWindow_data() { addRows(); }
    void createWidgetsBuildsOneHiddenWindow();
    void activatingPutsItIntoTheWindowAndRegisters_data() { addRows(); }
    void activatingPutsItIntoTheWindowAndRegisters();
    void deactivatingTakesItOutAndUnregisters_data() { addRows(); }
    void deactivatingTakesItOutAndUnregisters();
    void activatingTwiceAsksOnce_data() { addRows(); }
    void activatingTwiceAsksOnce();
    void deactivatingTwiceAsksOnce_data() { addRows(); }
    void deactivatingTwiceAsksOnce();
    void deactivatingWhatWasNeverActivatedAsksNothing_data() { addRows(); }
    void deactivatingWhatWasNeverActivatedAsksNothing();
    void showAndHideShowAndHideTheWindow_data() { addRows(); }
    void showAndHideShowAndHideTheWindow();
    void releasingWhatWasNeverBuiltDoesNothing_data() { addRows(); }
    void releasingWhatWasNeverBuiltDoesNothing();
    void withoutWidgetsItCanBeShownHiddenAndDeactivated_data() { addRows(); }
    void withoutWidgetsItCanBeShownHiddenAndDeactivated();
    void releasingDeletesTheWindow_data() { addRows(); }
    void releasingDeletesTheWindow();
    void releasedItCanBeBuiltAgain_data() { addRows(); }
    void releasedItCanBeBuiltAgain();
    void everyOrderOfFourStepsLeavesTheWindowAsTheLastOnesSay_data() { addRows(); }
    void everyOrderOfFourStepsLeavesTheWindowAsTheLastOnesSay();

private:
    static void addRows();
    static const Member& row();
};

void tst_DockExtensionContract::addRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < dockExtensions().size(); ++i)
        QTest::newRow(dockExtensions().at(i).className) << i;
}

const Member& tst_DockExtensionContract::row()
{
    QFETCH(int, index);
    return dockExtensions().at(index);
}

void tst_DockExtensionContract::tellsWhoItIs()
{
    Rig rig(row());
    QCOMPARE(rig->metaObject()->className(), row().className);
    QVERIFY(rig->getName().getLength() > 0);
    QVERIFY(rig->getDescription().getLength() > 0);
    QCOMPARE(rig->getVendor().getString(), "Quelvar");
    QCOMPARE(rig->getVersion().getString(), "1.0.0");
}

void tst_DockExtensionContract::makingItBuildsNoWidgets()
{
    const QWidgetList before = withoutParent();
    Rig rig(row());
    QCOMPARE(withoutParent(), before);
}

void tst_DockExtensionContract::createWidgetsBuildsOneHiddenWindow()
{
    Rig rig(row());
    rig.createWidgets();
    QVERIFY(rig.widget);
    QVERIFY(rig.widget->isHidden());
    QVERIFY(!rig.widget->acceptDrops());
    QVERIFY(rig.takeCalls().isEmpty());
    rig->releaseWidgets();
}

void tst_DockExtensionContract::activatingPutsItIntoTheWindowAndRegisters()
{
    Rig rig(row());
    rig.createWidgets();
    rig->activate();
    QCOMPARE(rig.takeCalls(), rig.activation());
    QCOMPARE(rig.widget->windowTitle(), QString(row().title));
    QVERIFY(rig->isActive());
    rig->deactivate();
    rig->releaseWidgets();
}

void tst_DockExtensionContract::deactivatingTakesItOutAndUnregisters()
{
    Rig rig(row());
    rig.createWidgets();
    rig->activate();
    rig.takeCalls();
    rig->deactivate();
    QCOMPARE(rig.takeCalls(), rig.deactivation());
    QVERIFY(!rig->isActive());
    rig->releaseWidgets();
}

void tst_DockExtensionContract::activatingTwiceAsksOnce()
{
    Rig rig(row());
    rig.createWidgets();
    rig->activate();
    rig->activate();
    QCOMPARE(rig.takeCalls(), rig.activation());
    rig->deactivate();
    QCOMPARE(rig.takeCalls(), rig.deactivation());
    rig->releaseWidgets();
}

void tst_DockExtensionContract::deactivatingTwiceAsksOnce()
{
    Rig rig(row());
    rig.createWidgets();
    rig->activate();
    rig->deactivate();
    rig->deactivate();
    QCOMPARE(rig.takeCalls(), rig.activation() + rig.deactivation());
    rig->activate();
    QCOMPARE(rig.takeCalls(), rig.activation());
    rig->deactivate();
    rig->releaseWidgets();
}

void tst_DockExtensionContract::deactivatingWhatWasNeverActivatedAsksNothing()
{
    Rig rig(row());
    rig.createWidgets();
    rig->deactivate();
    QVERIFY(rig.takeCalls().isEmpty());
    rig->releaseWidgets();
}

void tst_DockExtensionContract::showAndHideShowAndHideTheWindow()
{
    Rig rig(row());
    rig.createWidgets();
    rig->show();
    QVERIFY(!rig.widget->isHidden());
    QVERIFY(rig->isShown());
    rig->hide();
    QVERIFY(rig.widget->isHidden());
    QVERIFY(!rig->isShown());
    rig->releaseWidgets();
}

void tst_DockExtensionContract::releasingWhatWasNeverBuiltDoesNothing()
{
    Rig rig(row());
    rig->releaseWidgets();
    rig->releaseWidgets();
    QVERIFY(rig.takeCalls().isEmpty());
}

void tst_DockExtensionContract::withoutWidgetsItCanBeShownHiddenAndDeactivated()
{
    const QWidgetList before = withoutParent();
    Rig rig(row());
    rig->show();
    rig->hide();
    rig->deactivate();
    rig->releaseWidgets();
    QVERIFY(rig.takeCalls().isEmpty());
    QCOMPARE(withoutParent(), before);
}

void tst_DockExtensionContract::releasingDeletesTheWindow()
{
    const QWidgetList before = withoutParent();
    Rig rig(row());
    rig.createWidgets();
    rig->activate();
    rig->show();
    rig->deactivate();
    rig->releaseWidgets();
    QVERIFY(!rig.widget);
    QCOMPARE(withoutParent(), before);
    rig->releaseWidgets();
    rig->show();
    rig->hide();
}

void tst_DockExtensionContract::releasedItCanBeBuiltAgain()
{
    Rig rig(row());
    for (int round = 0; round < 2; ++round) {
        rig.createWidgets();
        QVERIFY(rig.widget);
        QVERIFY(rig.widget->isHidden());
        rig->activate();
        rig->show();
        QVERIFY(!rig.widget->isHidden());
        rig->deactivate();
        rig->releaseWidgets();
        QCOMPARE(rig.takeCalls(), rig.activation() + rig.deactivation());
    }
}

void tst_DockExtensionContract::everyOrderOfFourStepsLeavesTheWindowAsTheLastOnesSay()
{
    const int orders = s_stepCount * s_stepCount * s_stepCount * s_stepCount;
    for (int order = 0; order < orders; ++order) {
        Rig rig(row());
        rig.createWidgets();
        QStringList expected;
        QByteArray path;
        for (int step = 0, rest = order; step < 4; ++step, rest /= s_stepCount) {
            const auto& [name, call] = s_steps[rest % s_stepCount];
            const bool wasActive = rig->isActive();
            ((*rig).*call)();
            path += QByteArray(" ") + name;
            if (rig->isActive() != wasActive)
                expected += wasActive ? rig.deactivation() : rig.activation();
            QVERIFY2(rig.widget->isHidden() != rig->isShown(), path.constData());
            QVERIFY2(rig.host.shell.calls == expected, path.constData());
        }
        rig->deactivate();
        rig->releaseWidgets();
        QVERIFY2(!rig.widget, path.constData());
    }
}

TAVRIK_TEST_MAIN(tst_DockExtensionContract)
#include "tst_DockExtensionContract.moc"
