#include "FieldEditors/DvCommands.h"

#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/TvkFieldIgnoredCommand.h"

#include <QPushButton>
#include <QSlider>

#include <new>

namespace {
bool s_outOfMemory = false;
}

// The whole program's: what it asks for and can do without is refused on demand.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return s_outOfMemory ? nullptr : ::operator new(size);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    ::operator delete(memory);
}

namespace {

/** There is no memory while this lives. */
struct OutOfMemory
{
    OutOfMemory() { s_outOfMemory = true; }
    ~OutOfMemory() { s_outOfMemory = false; }
    OutOfMemory(const OutOfMemory&) = delete;
    OutOfMemory& operator=(const OutOfMemory&) = delete;
};

} // namespace

class tst_DvCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aCommandIsMadeAndHandedToTheHost()
    {
        RecordingServices services;
        SoSFFloat field;
        DvCommands::push<TvkFieldIgnoredCommand>(&field, true);
        QCOMPARE(services.count(), 1);
        QVERIFY(field.isIgnored());
    }

    void withoutAHostNothingIsDone()
    {
        QVERIFY(!TvkServices::getInstance());
        SoSFFloat field;
        DvCommands::push<TvkFieldIgnoredCommand>(&field, true);
        QVERIFY(!field.isIgnored());
    }

    void aCommandWithoutMemoryIsHandedOverAsNone()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(rig.find<QLineEdit>("SFVec3fLine"), QStringLiteral("5"));
        {
            const OutOfMemory outOfMemory;
            editor.applyChanges();
            rig.find<QPushButton>("m_ignoreButton")->setChecked(true);
            editor.ignoreButtonStateChanged();
        }
        QCOMPARE(rig.text(), QStringLiteral("5 2 3"));
        QVERIFY(rig.field->isIgnored());
        {
            const OutOfMemory outOfMemory;
            editor.setDefaultFieldValue();
        }
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
        QCOMPARE(rig.host.services.nullCommands, 3);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anEditorWithoutMemoryForItsSliderIsStillUsable()
    {
        s_outOfMemory = true;
        DvSFFloatWidget editor;
        s_outOfMemory = false;
        EditorRig rig(editor, "sfFloat");
        QVERIFY(!editor.getWidget()->findChild<QSlider*>());
        QTest::mouseClick(rig.find<QPushButton>("m_ignoreButton"), Qt::LeftButton);
        QVERIFY(rig.field->isIgnored());
        rig.field->touch();
        EditorRig::runSensors();
        editor.applyChanges();
        QVERIFY(!editor.hasPendingEdit());
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QVERIFY(rig.field->isDefault());
        rig.killNode();
        QCOMPARE(rig.host.services.count(), 2);
    }
};

TAVRIK_TEST_MAIN(tst_DvCommands)
#include "tst_DvCommands.moc"
