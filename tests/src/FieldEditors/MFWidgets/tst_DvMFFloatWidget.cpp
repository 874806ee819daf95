#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"

#include <Inventor/nodes/SoComplexity.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoMaterial.h>

#include <QSlider>

class tst_DvMFFloatWidget : public QObject
{
    Q_OBJECT

private:
    /** Where the thumb of the first row's slider stands, in hundredths of its range. */
    static int thumbOf(const TableRig& rig, float value)
    {
        static_cast<SoMFFloat*>(rig.field)->set1Value(0, value);
        TableRig::runSensors();
        QWidget* const slider = rig.openCell(0, 0);
        const int position = slider ? slider->findChild<QSlider*>()->value() : -1;
        rig.leave();
        return position;
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aSliderGoesFrom0To10AndGrows()
    {
        DvMFFloatWidget editor;
        const TableRig rig(editor, "mfFloat");
        QCOMPARE(thumbOf(rig, 2.5F), 25);
        QCOMPARE(thumbOf(rig, 10.0F), 100);
        rig.enter(0, 0, QStringLiteral("25"));
        QCOMPARE(rig.rows()[0], QByteArray("25"));
        QCOMPARE(thumbOf(rig, 25.0F), 100);
    }

    void aMaterialsSliderGoesFrom0To1AndDoesNotGrow()
    {
        DvMFFloatWidget editor;
        TableRig rig(editor, "mfFloat");
        auto* const material = new SoMaterial;
        material->ref();
        rig.edit(material->transparency);
        QCOMPARE(thumbOf(rig, 0.25F), 25);
        rig.enter(0, 0, QStringLiteral("2"));
        QCOMPARE(material->transparency[0], 1.0F);
        rig.edit(material->shininess);
        QCOMPARE(thumbOf(rig, 0.75F), 75);
        rig.edit(rig.node->mfFloat);
        QCOMPARE(thumbOf(rig, 2.5F), 25);
        rig.enter(0, 0, QStringLiteral("11"));
        QCOMPARE(rig.node->mfFloat[0], 11.0F);
        material->unref();
    }

    void keepsOneRangeForThreeTypesOfNodes()
    {
        DvMFFloatWidget editor;
        TableRig rig(editor, "mfFloat");
        const std::initializer_list<SoNode*> nodes = {new SoComplexity, new SoMaterial,
                                                      new SoDirectionalLight};
        for (SoNode* node : nodes) {
            node->ref();
            SoMFFloat field;
            field.setContainer(node);
            field.setValue(0.0F);
            rig.edit(field);
            QCOMPARE(thumbOf(rig, 0.25F), 25);
            editor.deactivate();
            node->unref();
        }
    }

    void aThumbThatIsDraggedWritesTheFieldAndMakesNoUndoEntry()
    {
        DvMFFloatWidget editor;
        const TableRig rig(editor, "mfFloat");
        QWidget* const slider = rig.openCell(0, 0);
        auto* const thumb = slider->findChild<QSlider*>();
        thumb->setFocus();
        QTest::keyClick(thumb, Qt::Key_End);
        QCOMPARE(rig.rows()[0], QByteArray("10"));
        TableRig::runSensors();
        rig.leave();
        QCOMPARE(rig.rows()[0], QByteArray("10"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aSmallNumberIsNotRoundedByBeingOpened()
    {
        DvMFFloatWidget editor;
        const TableRig rig(editor, "mfFloat");
        rig.node->mfFloat.set1Value(1, 1.23456788e-12F);
        TableRig::runSensors();
        rig.openCell(1, 0);
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        TableRig::settle();
        QCOMPARE(rig.node->mfFloat[1], 1.23456788e-12F);
    }
};

TAVRIK_TEST_MAIN(tst_DvMFFloatWidget)
#include "tst_DvMFFloatWidget.moc"
