#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"

#include <QCheckBox>

class tst_DvSFBoolWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void showsTheValueInABoxOfFixedSize()
    {
        DvSFBoolWidget editor;
        EditorRig rig(editor, "sfBool");
        auto* const box = rig.find<QCheckBox>("m_box");
        QVERIFY(box->isChecked());
        QCOMPARE(box->size(), QSize(16, 18));
        rig.node->sfBool = FALSE;
        EditorRig::runSensors();
        QVERIFY(!box->isChecked());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aClickCommitsOnce()
    {
        DvSFBoolWidget editor;
        EditorRig rig(editor, "sfBool");
        QTest::mouseClick(rig.find<QCheckBox>("m_box"), Qt::LeftButton);
        QCOMPARE(rig.text(), QStringLiteral("FALSE"));
        QCOMPARE(rig.host.services.count(), 1);
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theSpaceKeyCommitsOnce()
    {
        DvSFBoolWidget editor;
        EditorRig rig(editor, "sfBool");
        auto* const box = rig.find<QCheckBox>("m_box");
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Space);
        QCOMPARE(rig.text(), QStringLiteral("FALSE"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void keepsTheToggledValueWhenUndone()
    {
        DvSFBoolWidget editor;
        EditorRig rig(editor, "sfBool");
        QTest::mouseClick(rig.find<QCheckBox>("m_box"), Qt::LeftButton);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("FALSE"));
        rig.host.services.redo(0);
        QCOMPARE(rig.text(), QStringLiteral("FALSE"));
    }
};

TAVRIK_TEST_MAIN(tst_DvSFBoolWidget)
#include "tst_DvSFBoolWidget.moc"
