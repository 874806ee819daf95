#include "tests/support/TestMain.h"

#include <TvkEditor.h>
#include <TvkPlugin.h>

#include <QProcess>

#include <dlfcn.h>

#include <algorithm>
#include <set>

namespace {

/** In order of construction: the docks choose among the editors in this order. */
const char* const s_constructed[] = {
    "TvkProfileSelectorExtension",
    "TvkConsole",
    "DvMFColorWidget",
    "DvMFDefaultFieldWidget",
    "DvMFDoubleWidget",
    "DvMFFloatWidget",
    "DvMFInt32Widget",
    "DvMFMatrixWidget",
    "DvMFPlaneWidget",
    "DvMFRotationWidget",
    "DvMFShortWidget",
    "DvMFStringWidget",
    "DvMFUInt32Widget",
    "DvMFUShortWidget",
    "DvMFVec2fWidget",
    "DvMFVec2i32Widget",
    "DvMFVec2sWidget",
    "DvMFVec3fWidget",
    "DvMFVec4fWidget",
    "DvSFBitMaskWidget",
    "DvSFBoolWidget",
    "DvSFBox3sWidget",
    "DvSFColorWidget",
    "DvSFEnumWidget",
    "DvSFDoubleWidget",
    "DvSFFilePathStringWidget",
    "DvSFFloatWidget",
    "DvSFImageWidget",
    "DvSFInt32Widget",
    "DvSFLineWidget",
    "DvSFMatrixWidget",
    "DvSFNameWidget",
    "DvSFPlaneWidget",
    "DvSFRotationWidget",
    "DvSFShortWidget",
    "DvSFStringWidget",
    "DvSFUInt32Widget",
    "DvSFUShortWidget",
    "DvSFVec2fWidget",
    "DvSFVec2i32Widget",
    "DvSFVec2sWidget",
    "DvSFVec3fWidget",
    "DvSFVec4fWidget",
    "TvkFieldEditorDockWin",
    "TvkNodeEditor",
};

/** In order of registration, and the field type of each; only editors have one. */
const std::pair<const char*, const char*> s_registered[] = {
    {"TvkProfileSelectorExtension", ""},
    {"TvkConsole", ""},
    {"DvMFColorWidget", "MFColor"},
    {"DvMFDefaultFieldWidget", "MField"},
    {"DvMFDoubleWidget", "MFDouble"},
    {"DvSFFilePathStringWidget", "SFFilePathString"},
    {"DvMFFloatWidget", "MFFloat"},
    {"DvMFInt32Widget", "MFInt32"},
    {"DvMFMatrixWidget", "MFMatrix"},
    {"DvMFPlaneWidget", "MFPlane"},
    {"DvMFRotationWidget", "MFRotation"},
    {"DvMFShortWidget", "MFShort"},
    {"DvMFStringWidget", "MFString"},
    {"DvMFUInt32Widget", "MFUInt32"},
    {"DvMFUShortWidget", "MFUShort"},
    {"DvMFVec2fWidget", "MFVec2f"},
    {"DvMFVec2i32Widget", "MFVec2i32"},
    {"DvMFVec2sWidget", "MFVec2s"},
    {"DvMFVec3fWidget", "MFVec3f"},
    {"DvMFVec4fWidget", "MFVec4f"},
    {"DvSFBitMaskWidget", "SFBitMask"},
    {"DvSFBoolWidget", "SFBool"},
    {"DvSFBox3sWidget", "SFBox3s"},
    {"DvSFColorWidget", "SFColor"},
    {"DvSFEnumWidget", "SFEnum"},
    {"DvSFDoubleWidget", "SFDouble"},
    {"DvSFFloatWidget", "SFFloat"},
    {"DvSFImageWidget", "SFImage"},
    {"DvSFInt32Widget", "SFInt32"},
    {"DvSFLineWidget", "SField"},
    {"DvSFMatrixWidget", "SFMatrix"},
    {"DvSFNameWidget", "SFName"},
    {"DvSFPlaneWidget", "SFPlane"},
    {"DvSFRotationWidget", "SFRotation"},
    {"DvSFShortWidget", "SFShort"},
    {"DvSFStringWidget", "SFString"},
    {"DvSFUInt32Widget", "SFUInt32"},
    {"DvSFUShortWidget", "SFUShort"},
    {"DvSFVec2fWidget", "SFVec2f"},
    {"DvSFVec2i32Widget", "SFVec2i32"},
    {"DvSFVec2sWidget", "SFVec2s"},
    {"DvSFVec3fWidget", "SFVec3f"},
    {"DvSFVec4fWidget", "SFVec4f"},
    {"TvkFieldEditorDockWin", ""},
    {"TvkNodeEditor", ""},
};

QStringList namesOf(const std::vector<TvkExtension*>& extensions)
{
    QStringList names;
    for (const TvkExtension* extension : extensions)
        names << extension->objectName();
    return names;
}

QByteArray handledTypeOf(TvkExtension* extension)
{
    auto* const editor = qobject_cast<TvkEditor*>(extension);
    return editor ? editor->getHandledType().getName().getString() : "";
}

} // namespace

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
        QStringList expected;
        for (const auto& [name, type] : s_registered)
            expected << QString(name);
        QCOMPARE(namesOf(plugin->getExtensions()), expected);
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

    void keepsTheFilePathEditorApartFromTheOtherSingleValueOnes()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        const QStringList names = namesOf(plugin->getExtensions());
        QCOMPARE(names.mid(names.indexOf("DvSFFilePathStringWidget") - 1, 3),
                 QStringList({"DvMFDoubleWidget", "DvSFFilePathStringWidget", "DvMFFloatWidget"}));
        m_unload();
    }

    void registersNoEditorThatIsOnlyABase()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        QCOMPARE(plugin->getExtensions().size(), std::size_t(45));
        for (const TvkExtension* extension : plugin->getExtensions()) {
            // Each is of the class that it is named for, so none is a common base.
            QCOMPARE(QString(extension->metaObject()->className()), extension->objectName());
            QVERIFY(extension->objectName() != QLatin1String("DvMFLineWidget"));
        }
        m_unload();
    }

    /** The plug-in holds its extensions as members: they lie in the order of their making. */
    void makesItsExtensionsInOrder()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        std::vector<TvkExtension*> made = plugin->getExtensions();
        std::sort(made.begin(), made.end(), std::less<TvkExtension*>());
        QStringList expected;
        for (const char* name : s_constructed)
            expected << QString(name);
        QCOMPARE(namesOf(made), expected);
        m_unload();
    }

    void everyEditorHandlesATypeOfItsOwn()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        const std::vector<TvkExtension*>& extensions = plugin->getExtensions();
        std::set<QByteArray> types;
        std::size_t editors = 0;
        for (std::size_t i = 0; i < extensions.size(); ++i) {
            QCOMPARE(handledTypeOf(extensions[i]), QByteArray(s_registered[i].second));
            if (!qobject_cast<TvkEditor*>(extensions[i]))
                continue;
            types.insert(handledTypeOf(extensions[i]));
            ++editors;
        }
        QCOMPARE(types.size(), editors);
        m_unload();
    }

    void buildsNoWidgetsBeforeTheHostAsksForThem()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        for (TvkExtension* extension : plugin->getExtensions()) {
            if (const auto* const editor = qobject_cast<TvkEditor*>(extension)) {
                QVERIFY(!editor->getWidget()->layout());
                QVERIFY(!editor->getWidget()->parent());
            }
        }
        m_unload();
    }

    void unloadingDestroysTheExtensionsInReverseOrder()
    {
        TvkPlugin* const plugin = m_load();
        plugin->load();
        QStringList destroyed;
        for (TvkExtension* extension : plugin->getExtensions()) {
            const QString name = extension->objectName();
            connect(extension, &QObject::destroyed,
                    [&destroyed, name] { destroyed.prepend(name); });
        }
        m_unload();
        QStringList expected;
        for (const char* name : s_constructed)
            expected << QString(name);
        QCOMPARE(destroyed, expected);
    }
};

TAVRIK_TEST_MAIN(tst_TvkDefaults)
#include "tst_TvkDefaults.moc"
