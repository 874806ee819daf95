#include "tests/support/FieldBits.h"
#include "tests/support/LineChecks.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

template <class Editor>
std::unique_ptr<DvSFieldWidget> make()
{
    return std::make_unique<Editor>();
}

QLineEdit* line(const EditorRig& rig, int i)
{
    return rig.find<QLineEdit>("SF4fine", i);
}

void enter(const EditorRig& rig, int i, const QString& text)
{
    EditorRig::type(line(rig, i), text);
    QTest::keyClick(line(rig, i), Qt::Key_Return);
    EditorRig::runSensors();
}

} // namespace

/** The three editors of four numbers: a vector, a plane, a rotation. */
class tst_DvSF4fBox : public QObject
{
    Q_OBJECT

private:
    using Make = std::unique_ptr<DvSFieldWidget> (*)();

    static std::unique_ptr<DvSFieldWidget> fetchEditor()
    {
        QFETCH(int, kind);
        const Make makers[] = {&make<DvSFVec4fWidget>, &make<DvSFPlaneWidget>,
                               &make<DvSFRotationWidget>};
        return makers[kind]();
    }

    static const char* fetchField()
    {
        QFETCH(int, kind);
        const char* const fields[] = {"sfVec4f", "sfPlane", "sfRotation"};
        return fields[kind];
    }

    static void addKinds()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("Vec4f") << 0;
        QTest::newRow("Plane") << 1;
        QTest::newRow("Rotation") << 2;
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void isCalledByItsClassUnlessATypeSaysOtherwise()
    {
        DvSFVec4fWidget editor;
        QVERIFY(qobject_cast<DvSF4fBox*>(&editor));
        QCOMPARE(DvSF4fBox::staticMetaObject.className(), "DvSF4fBox");
    }

    void theFourthLabelSaysWhatItIs_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("fourth");
        QTest::newRow("Vec4f") << 0 << "<p>w</p>";
        QTest::newRow("Plane") << 1 << "<p>distance</p>";
        QTest::newRow("Rotation") << 2 << "<p>radians</p>";
    }
    void theFourthLabelSaysWhatItIs()
    {
        QFETCH(QString, fourth);
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        const QStringList texts = {"<p>x</p>", "<p>y</p>", "<p>z</p>", fourth};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(rig.find<QLabel>("SF4flabel", i)->text(), texts.at(i));
    }

    void theLayoutHasItsNameAndItsSpacings_data() { addKinds(); }
    void theLayoutHasItsNameAndItsSpacings()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        auto* const layout = editor->getWidget()->findChild<QGridLayout*>("SF4FvLayout");
        QVERIFY(layout);
        QCOMPARE(layout->verticalSpacing(), 4);
        QCOMPARE(layout->horizontalSpacing(), 4);
        QCOMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
        for (int i = 0; i < 4; ++i)
            QVERIFY(line(rig, i)->height() >= 16);
    }

    void everyLineTakesSinglePrecisionNumbersWithSixDecimals_data() { addKinds(); }
    void everyLineTakesSinglePrecisionNumbersWithSixDecimals()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        LineChecks::takeSinglePrecisionNumbers(rig, "SF4fine", 4);
    }

    void leavingAnEditedLineCommitsOnce_data() { addKinds(); }
    void leavingAnEditedLineCommitsOnce()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        EditorRig::type(line(rig, 3), QStringLiteral("0.5"));
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("0.5"));
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
    }

    void leavingAnUneditedLineCommitsNothing_data() { addKinds(); }
    void leavingAnUneditedLineCommitsNothing()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        const QByteArray before = bitsOf(*rig.field);
        for (int i = 0; i < 4; ++i)
            QTest::mouseClick(line(rig, i), Qt::LeftButton);
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(bitsOf(*rig.field), before);
    }

    void returnOnAnUneditedLineChangesNoBit_data() { addKinds(); }
    void returnOnAnUneditedLineChangesNoBit()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        QVERIFY(rig.field->set("0.267261237 0.534522474 0.80178374 1.23456788"));
        EditorRig::runSensors();
        const QByteArray before = bitsOf(*rig.field);
        line(rig, 0)->setFocus();
        QTest::keyClick(line(rig, 0), Qt::Key_Return);
        QCOMPARE(bitsOf(*rig.field), before);
    }

    void aComponentOfNineDigitsKeepsItsBitsWhenAnotherIsEdited()
    {
        DvSFVec4fWidget editor;
        EditorRig rig(editor, "sfVec4f");
        rig.node->sfVec4f.setValue(1.23456788F, 2.0F, 3.0F, 1e-7F);
        EditorRig::runSensors();
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("1.23457"));
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("1e-07"));
        enter(rig, 1, QStringLiteral("9"));
        QVERIFY(rig.node->sfVec4f.getValue() == SbVec4f(1.23456788F, 9.0F, 3.0F, 1e-7F));
    }

    void textThatIsNoNumberCountsAsZero_data() { addKinds(); }
    void textThatIsNoNumberCountsAsZero()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        line(rig, 3)->setText(QStringLiteral("wood"));
        line(rig, 3)->setModified(true);
        editor->applyChanges();
        EditorRig::runSensors();
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("0"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aTypedTextSurvivesAnOutsideChange_data() { addKinds(); }
    void aTypedTextSurvivesAnOutsideChange()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        EditorRig::type(line(rig, 3), QStringLiteral("0.5"));
        QVERIFY(rig.field->set("1 0 0 0.75"));
        EditorRig::runSensors();
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("1"));
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("0.5"));
        QTest::keyClick(line(rig, 3), Qt::Key_Return);
        EditorRig::runSensors();
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("1"));
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("0.5"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void keepsNormalisingTheNormalOfAPlane()
    {
        DvSFPlaneWidget editor;
        EditorRig rig(editor, "sfPlane");
        enter(rig, 1, QStringLiteral("2"));
        QCOMPARE(rig.text(), QStringLiteral("0 1 0  2"));
        QCOMPARE(line(rig, 1)->text(), QStringLiteral("1"));
        enter(rig, 0, QStringLiteral("1"));
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("0.707107"));
        QCOMPARE(line(rig, 1)->text(), QStringLiteral("0.707107"));
    }

    void editingTheDistanceLeavesTheNormalToTheLastBit()
    {
        DvSFPlaneWidget editor;
        EditorRig rig(editor, "sfPlane");
        rig.node->sfPlane.setValue(SbPlane(SbVec3f(1.0F, 2.0F, 3.0F), 4.0F));
        EditorRig::runSensors();
        const SbVec3f before = rig.node->sfPlane.getValue().getNormal();
        enter(rig, 3, QStringLiteral("5"));
        const SbPlane after = rig.node->sfPlane.getValue();
        QVERIFY(after.getNormal().equals(before, 1e-12F));
        QCOMPARE(after.getDistanceFromOrigin(), 5.0F);
    }

    void aPlaneCanLoseItsNormal()
    {
        DvSFPlaneWidget editor;
        EditorRig rig(editor, "sfPlane");
        enter(rig, 1, QStringLiteral("0"));
        QCOMPARE(rig.text(), QStringLiteral("0 0 0  2"));
    }

    void aRotationTurnsByTheTypedRadians()
    {
        DvSFRotationWidget editor;
        EditorRig rig(editor, "sfRotation");
        enter(rig, 3, QStringLiteral("0.25"));
        QVERIFY(rig.node->sfRotation.getValue().equals(SbRotation(SbVec3f(0.0F, 0.0F, 1.0F), 0.25F),
                                                       1e-6F));
    }

    void aRotationOfATypedAxisIsShownWithTheAxisOfLengthOne()
    {
        DvSFRotationWidget editor;
        EditorRig rig(editor, "sfRotation");
        enter(rig, 2, QStringLiteral("5"));
        QCOMPARE(line(rig, 2)->text(), QStringLiteral("1"));
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("1.5"));
    }

    void keepsShowingANegativeAngleAroundTheOppositeAxis()
    {
        DvSFRotationWidget editor;
        EditorRig rig(editor, "sfRotation");
        enter(rig, 3, QStringLiteral("-1"));
        QCOMPARE(line(rig, 2)->text(), QStringLiteral("-1"));
        QCOMPARE(line(rig, 3)->text(), QStringLiteral("1"));
    }

    void keepsTheNewValueWhenItIsUndone_data() { addKinds(); }
    void keepsTheNewValueWhenItIsUndone()
    {
        const auto editor = fetchEditor();
        EditorRig rig(*editor, fetchField());
        enter(rig, 3, QStringLiteral("0.5"));
        const QString after = rig.text();
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), after);
    }
};

TAVRIK_TEST_MAIN(tst_DvSF4fBox)
#include "tst_DvSF4fBox.moc"
