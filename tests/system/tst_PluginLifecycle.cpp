#include "tests/support/TestMain.h"

#include "lib/HostPluginLoader.h"
#include "lib/HostPluginsManager.h"
#include "lib/HostServices.h"
#include "lib/HostShell.h"

#include <TvkPlugin.h>

#include <Inventor/nodes/SoCone.h>

#include <QMainWindow>

/** The plug-in as it comes and goes in a host that stays. */
class tst_PluginLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyExtensionEndsWithoutHavingBegun();
    void everyExtensionIsShownAndHiddenAsOftenAsItTakes();
    void thePluginComesAndGoesAThousandTimes();

private:
    /** Loads the plug-in, uses it, and unloads it. */
    void comeAndGo();

    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<HostShell> m_shell;
    HostPluginLoader m_loader;
    SoCone* m_cone = nullptr;
};

void tst_PluginLifecycle::init()
{
    m_window = std::make_unique<QMainWindow>();
    m_services = std::make_unique<HostServices>();
    m_shell = std::make_unique<HostShell>(*m_window);
    m_cone = new SoCone;
    m_cone->ref();
    QVERIFY2(m_loader.load(HostPluginLoader::pluginDirectory() + "/TvkDefaults.so"),
             qPrintable(m_loader.errorString()));
}

void tst_PluginLifecycle::cleanup()
{
    m_loader.unload();
    m_cone->unref();
}

void tst_PluginLifecycle::everyExtensionEndsWithoutHavingBegun()
{
    m_loader.plugin()->load();
    for (TvkExtension* extension : m_loader.plugin()->getExtensions()) {
        extension->hide();
        extension->deactivate();
        extension->releaseWidgets();
    }
    m_loader.plugin()->unload();
    QVERIFY(m_shell->docks().empty());
    QVERIFY(m_shell->activeExtensions().empty());
}

void tst_PluginLifecycle::everyExtensionIsShownAndHiddenAsOftenAsItTakes()
{
    HostPluginsManager manager;
    manager.adopt(*m_loader.plugin());
    const auto docks = m_shell->docks();
    QVERIFY(!docks.empty());
    for (int i = 0; i < 3; ++i) {
        for (TvkExtension* extension : m_shell->activeExtensions()) {
            extension->hide();
            extension->show();
            extension->deactivate();
            extension->activate();
        }
    }
    QCOMPARE(m_shell->docks().size(), docks.size());
    manager.release(*m_loader.plugin());
    QVERIFY(m_shell->docks().empty());
}

void tst_PluginLifecycle::comeAndGo()
{
    HostPluginsManager manager;
    TvkPlugin* const plugin =
        m_loader.load(HostPluginLoader::pluginDirectory() + QLatin1String("/TvkDefaults.so"));
    manager.adopt(*plugin);
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_services->selectNode(nullptr);
    m_services->undoStack().clear();
    manager.release(*plugin);
    m_loader.unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_PluginLifecycle::thePluginComesAndGoesAThousandTimes()
{
    comeAndGo();
    const int widgets = QApplication::allWidgets().size();
    const int types = SoType::getNumTypes();
    for (int i = 0; i < 1000; ++i)
        comeAndGo();
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(SoType::getNumTypes(), types);
    QVERIFY(m_shell->docks().empty());
    QVERIFY(m_shell->toolBars().empty());
    QVERIFY(m_shell->activeExtensions().empty());
}

TAVRIK_TEST_MAIN(tst_PluginLifecycle)
#include "tst_PluginLifecycle.moc"
