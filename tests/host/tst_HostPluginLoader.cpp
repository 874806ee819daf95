#include "lib/HostPluginLoader.h"

#include "tests/host/TestPlugin.h"
#include "tests/support/TestMain.h"

#include <TvkPlugin.h>

#include <QTemporaryDir>

#include <dlfcn.h>

class tst_HostPluginLoader : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aPluginIsLoadedOnce();
    void loadingAgainAnswersTheSameObject();
    void anotherPathIsRefusedWhileOneIsLoaded();
    void unloadingDestroysThePluginOnce();
    void theDestructorUnloads();
    void anUnloadedPluginCanBeLoadedAgain();
    void theLibraryStaysInTheProcess();
    void itsNamesStayItsOwn();

    void aMissingFileIsNamed();
    void aFolderIsNoPlugin();
    void aFileThatIsNoLibraryIsNamed();
    void aLibraryWithoutTheFunctionsSaysWhichIsMissing_data();
    void aLibraryWithoutTheFunctionsSaysWhichIsMissing();
    void aLibraryThatMakesNoPluginSaysSo();
    void aLibraryThatThrowsSaysWhy();
    void aLibraryThatThrowsAnythingIsRefused();
    void aSuccessClearsTheError();

    void thePluginDirectoryStandsBesideThisLibrary();
    void theEnvironmentNamesAnotherPluginDirectory();
    void anEmptyEnvironmentNamesNone();

private:
    TestPluginState* m_state = nullptr;
};

void tst_HostPluginLoader::init()
{
    void* library = dlopen(TEST_PLUGIN, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    QVERIFY2(library, dlerror());
    void* state = dlsym(library, "testPluginState");
    QVERIFY(state);
    m_state = reinterpret_cast<TestPluginStateFunction*>(state)();
    dlclose(library);
    *m_state = TestPluginState();
}

void tst_HostPluginLoader::aPluginIsLoadedOnce()
{
    HostPluginLoader loader;
    TvkPlugin* plugin = loader.load(TEST_PLUGIN);
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    QCOMPARE(plugin->getName().getString(), "TestPlugin");
    QCOMPARE(loader.plugin(), plugin);
    QCOMPARE(m_state->loads, 1);
}

void tst_HostPluginLoader::loadingAgainAnswersTheSameObject()
{
    HostPluginLoader loader;
    TvkPlugin* plugin = loader.load(TEST_PLUGIN);
    QCOMPARE(loader.load(TEST_PLUGIN), plugin);
    QCOMPARE(m_state->loads, 1);
}

void tst_HostPluginLoader::anotherPathIsRefusedWhileOneIsLoaded()
{
    HostPluginLoader loader;
    TvkPlugin* plugin = loader.load(TEST_PLUGIN);
    QCOMPARE(loader.load(TEST_LIBRARY), nullptr);
    QVERIFY2(loader.errorString().contains(TEST_LIBRARY), qPrintable(loader.errorString()));
    QCOMPARE(loader.plugin(), plugin);
}

void tst_HostPluginLoader::unloadingDestroysThePluginOnce()
{
    HostPluginLoader loader;
    loader.load(TEST_PLUGIN);
    loader.unload();
    QCOMPARE(loader.plugin(), nullptr);
    loader.unload();
    QCOMPARE(m_state->unloads, 1);
}

void tst_HostPluginLoader::theDestructorUnloads()
{
    {
        HostPluginLoader loader;
        loader.load(TEST_PLUGIN);
    }
    QCOMPARE(m_state->unloads, 1);
    {
        HostPluginLoader unused;
    }
    QCOMPARE(m_state->unloads, 1);
}

void tst_HostPluginLoader::anUnloadedPluginCanBeLoadedAgain()
{
    HostPluginLoader loader;
    loader.load(TEST_PLUGIN);
    loader.unload();
    QVERIFY(loader.load(TEST_PLUGIN));
    QCOMPARE(m_state->loads, 2);
}

void tst_HostPluginLoader::theLibraryStaysInTheProcess()
{
    // A copy, which nobody else has opened.
    const QTemporaryDir folder;
    const QString path = folder.filePath("Copy.so");
    QVERIFY(QFile::copy(TEST_PLUGIN, path));
    HostPluginLoader loader;
    QVERIFY(loader.load(path));
    loader.unload();
    void* library = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_NOLOAD);
    QVERIFY(library);
    dlclose(library);
}

void tst_HostPluginLoader::itsNamesStayItsOwn()
{
    HostPluginLoader loader;
    loader.load(TEST_PLUGIN);
    QCOMPARE(dlsym(RTLD_DEFAULT, "loadPlugin"), nullptr);
}

void tst_HostPluginLoader::aMissingFileIsNamed()
{
    HostPluginLoader loader;
    QCOMPARE(loader.load("/nowhere/TvkNothing.so"), nullptr);
    QCOMPARE(loader.errorString(), QString("There is no plug-in /nowhere/TvkNothing.so"));
}

void tst_HostPluginLoader::aFolderIsNoPlugin()
{
    const QTemporaryDir folder;
    HostPluginLoader loader;
    QCOMPARE(loader.load(folder.path()), nullptr);
    QVERIFY(loader.errorString().contains(folder.path()));
}

void tst_HostPluginLoader::aFileThatIsNoLibraryIsNamed()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("text.so"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no library at all");
    file.close();
    HostPluginLoader loader;
    QCOMPARE(loader.load(file.fileName()), nullptr);
    QVERIFY2(loader.errorString().startsWith(file.fileName() + " cannot be opened: "),
             qPrintable(loader.errorString()));
}

void tst_HostPluginLoader::aLibraryWithoutTheFunctionsSaysWhichIsMissing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("function");
    QTest::newRow("neither") << TEST_LIBRARY << "loadPlugin";
    QTest::newRow("only loadPlugin") << TEST_HALF_PLUGIN << "unloadPlugin";
}

void tst_HostPluginLoader::aLibraryWithoutTheFunctionsSaysWhichIsMissing()
{
    QFETCH(QString, path);
    QFETCH(QString, function);
    HostPluginLoader loader;
    QCOMPARE(loader.load(path), nullptr);
    QCOMPARE(loader.errorString(), path + " is no plug-in: it has no function " + function);
}

void tst_HostPluginLoader::aLibraryThatMakesNoPluginSaysSo()
{
    m_state->answerNull = true;
    HostPluginLoader loader;
    QCOMPARE(loader.load(TEST_PLUGIN), nullptr);
    QCOMPARE(loader.errorString(), QString(TEST_PLUGIN) + " made no plug-in");
    QCOMPARE(loader.plugin(), nullptr);
}

void tst_HostPluginLoader::aLibraryThatThrowsSaysWhy()
{
    m_state->fail = true;
    HostPluginLoader loader;
    QCOMPARE(loader.load(TEST_PLUGIN), nullptr);
    QCOMPARE(loader.errorString(), QString(TEST_PLUGIN) + " failed: no memory for it");
}

void tst_HostPluginLoader::aLibraryThatThrowsAnythingIsRefused()
{
    m_state->failWithoutWords = true;
    HostPluginLoader loader;
    QCOMPARE(loader.load(TEST_PLUGIN), nullptr);
    QVERIFY(loader.errorString().startsWith(QString(TEST_PLUGIN) + " failed"));
}

void tst_HostPluginLoader::aSuccessClearsTheError()
{
    HostPluginLoader loader;
    loader.load("/nowhere/TvkNothing.so");
    loader.load(TEST_PLUGIN);
    QCOMPARE(loader.errorString(), QString());
}

void tst_HostPluginLoader::thePluginDirectoryStandsBesideThisLibrary()
{
    qunsetenv("TAVRIK_PLUGIN_PATH");
    QCOMPARE(HostPluginLoader::pluginDirectory(), QString(TEST_HOST_FOLDER "/tavrik/plugins"));
}

void tst_HostPluginLoader::theEnvironmentNamesAnotherPluginDirectory()
{
    qputenv("TAVRIK_PLUGIN_PATH", "/somewhere/else");
    QCOMPARE(HostPluginLoader::pluginDirectory(), QString("/somewhere/else"));
    qunsetenv("TAVRIK_PLUGIN_PATH");
}

void tst_HostPluginLoader::anEmptyEnvironmentNamesNone()
{
    qputenv("TAVRIK_PLUGIN_PATH", "");
    QVERIFY(HostPluginLoader::pluginDirectory().endsWith("/tavrik/plugins"));
    qunsetenv("TAVRIK_PLUGIN_PATH");
}

TAVRIK_TEST_MAIN(tst_HostPluginLoader)
#include "tst_HostPluginLoader.moc"
