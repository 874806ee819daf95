#include "tests/support/TestMain.h"

#include <TvkEditor.h>
#include <TvkPlugin.h>

#include <Inventor/fields/SoSField.h>

#include <QProcess>

#include <dlfcn.h>

/** The plug-in library as a host sees it: a file with two functions. */
class tst_TvkDefaults : public QObject
{
    Q_OBJECT

private:
    using Load = TvkPlugin* (*)();
    using Unload = void (*)();

    void* m_library = nullptr;
    Load m_load = nullptr;
    Unload m_unload = nullptr;

private slots:
    void initTestCase()
    {
        m_library = dlopen(TVKDEFAULTS_FILE, RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
        QVERIFY2(m_library, dlerror());
        m_load = reinterpret_cast<Load>(dlsym(m_library, "loadPlugin"));
        m_unload = reinterpret_cast<Unload>(dlsym(m_library, "unloadPlugin"));
        QVERIFY(m_load && m_unload);
    }

    void cleanupTestCase() { dlclose(m_library); }

    void exportsItsTwoFunctionsAndNothingElse()
    {
        QProcess nm;
        nm.start(QStringLiteral("nm"), {"-D", "--defined-only", "--format=just-symbols",
                                        QStringLiteral(TVKDEFAULTS_FILE)});
        QVERIFY(nm.waitForFinished());
        QStringList symbols =
            QString::fromLatin1(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        symbols.sort();
        QCOMPARE(symbols, QStringList({"loadPlugin", "unloadPlugin"}));
    }

    void unloadingWithoutAPluginDoesNothingAsOftenAsItIsDone()
    {
        m_unload();
        m_unload();
        QVERIFY(m_load());
        m_unload();
        m_unload();
    }

    void tellsWhoItIs()
    {
        const TvkPlugin* const plugin = m_load();
        QCOMPARE(plugin->getName().getString(), "TvkDefaults");
        QCOMPARE(plugin->getDescription().getString(),
                 "Plug-in which loads Tavrik default extensions.");
        QCOMPARE(plugin->getVendor().getString(), "Quelvar");
        QCOMPARE(plugin->getVersion().getString(), "1.0.0");
        m_unload();
    }

    void keepsNoHoldOfAFirstPluginWhenASecondIsLoaded()
    {
        TvkPlugin* const first = m_load();
        TvkPlugin* const second = m_load();
        QVERIFY(first != second);
        m_unload(); // the second
        QCOMPARE(first->getName().getString(), "TvkDefaults");
        delete first;
        m_unload();
    }

    void registersItsExtensionsInOrderWhenLoaded()
    {
        TvkPlugin* const plugin = m_load();
        QVERIFY(plugin->getExtensions().empty());
        plugin->load();
        QStringList names;
        for (const TvkExtension* extension : plugin->getExtensions())
            names << extension->objectName();
        QCOMPARE(names, QStringList({"DvSFBoolWidget", "DvSFLineWidget", "DvSFVec3fWidget",
                                     "TvkFieldEditorDockWin"}));
        QVERIFY(plugin->isLoaded());
        plugin->unload();
        m_unload();
    }

    void everyExtensionTellsWhoItIs()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        for (const TvkExtension* extension : plugin->getExtensions()) {
            QVERIFY(extension->getName().getLength() > 0);
            QVERIFY(extension->getDescription().getLength() > 0);
            QCOMPARE(extension->getVendor().getString(), "Quelvar");
            QCOMPARE(extension->getVersion().getString(), "1.0.0");
        }
        m_unload();
    }

    void noEditorHandlesABadType()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        int editors = 0;
        for (TvkExtension* extension : plugin->getExtensions()) {
            if (auto* const editor = qobject_cast<TvkEditor*>(extension)) {
                QVERIFY(!editor->getHandledType().isBad());
                ++editors;
            }
        }
        QCOMPARE(editors, 3);
        m_unload();
    }
};

TAVRIK_TEST_MAIN(tst_TvkDefaults)
#include "tst_TvkDefaults.moc"
