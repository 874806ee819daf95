#include "scenegraph/SoFieldTextCheck.h"

#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

#include <Inventor/SbString.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodekits/SoShapeKit.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <memory>

namespace {

std::unique_ptr<SoField> make(const char* fieldClass)
{
    const SoType type = SoType::fromName(fieldClass);
    return std::unique_ptr<SoField>(static_cast<SoField*>(type.createInstance()));
}

void addTexts()
{
    QTest::addColumn<QByteArray>("fieldClass");
    QTest::addColumn<QByteArray>("text");
}

void add(const char* fieldClass, const QByteArray& text)
{
    QTest::newRow((QByteArray(fieldClass) + ' ' + text.left(30).simplified()).constData())
        << QByteArray(fieldClass) << text;
}

} // namespace

class tst_SoFieldTextCheck : public QObject
{
    Q_OBJECT

private slots:
    void aWholeValueIsAccepted_data();
    void aWholeValueIsAccepted();
    void anythingElseIsRefusedInSilence_data();
    void anythingElseIsRefusedInSilence();
    void whatAFieldWritesIsAccepted_data();
    void whatAFieldWritesIsAccepted();
    void aNamedValueIsAcceptedWhereTheFieldHasIt();
    void aLongTextIsReadWhole();
    void theFieldItselfIsNotTouched();
    void theReadErrorsHandlerIsBackAfterwards();
    void aNamedNodeInTheTextIsForgottenAgain();
    void aPartOfANodeKitTakesNodesOfItsTypeOnly();
};

void tst_SoFieldTextCheck::aWholeValueIsAccepted_data()
{
    addTexts();
    add("SFInt32", "31");
    add("SFInt32", "0x1F");
    add("SFInt32", "  -5 \n");
    add("SFFloat", "1.5");
    add("SFFloat", "1e-07");
    add("SFBool", "TRUE");
    add("SFTime", "2.5");
    add("SFVec3f", "1 2 3");
    add("SFVec3f", "1\n2\t3");
    add("SFRotation", "0 1 0  1.5");
    add("SFString", "\"two words\"");
    add("SFString", "word");
    add("SFString", "\"\"");
    add("SFName", "\"nm\"");
    add("SFNode", "NULL");
    add("SFNode", "Cube { }");
    add("SFPath", "NULL");
    add("SFEngine", "NULL");
    add("MFFloat", "[ 1, 2, 3 ]");
    add("MFFloat", "[1 2 3]");
    add("MFFloat", "[ ]");
    add("MFFloat", "7");
    add("MFVec2f", "[ 1 2, 3 4 ]");
    add("MFString", "[ \"a\", \"b c\" ]");
    add("SFFloat", "1 # a comment");
}

void tst_SoFieldTextCheck::aWholeValueIsAccepted()
{
    QFETCH(QByteArray, fieldClass);
    QFETCH(QByteArray, text);
    const auto field = make(fieldClass.constData());
    QVERIFY(SoFieldTextCheck::accepts(*field, SbString(text.constData())));
}

void tst_SoFieldTextCheck::anythingElseIsRefusedInSilence_data()
{
    addTexts();
    add("SFInt32", "");
    add("SFInt32", "  ");
    add("SFInt32", "1F");
    add("SFInt32", "1.5");
    add("SFInt32", "017 8");
    add("SFInt32", "FF");
    add("SFFloat", "1,5");
    add("SFFloat", "1 2");
    add("SFFloat", "1e");
    add("SFFloat", "-");
    add("SFBool", "MAYBE");
    add("SFTime", "now");
    add("SFTime", "~");
    add("SFTime", "5 ~");
    add("SFTime", "= realTime");
    add("SFVec3f", "4 5");
    add("SFVec3f", "1 2 3 4");
    add("SFVec3d", "1 2");
    add("SFString", "a b");
    add("SFString", "\"open");
    add("SFString", "\"a\" b");
    add("SFFloat", "NULL");
    add("SFNode", "");
    add("SFNode", "Cube {");
    add("SFNode", "Cube { } Cone { }");
    add("SFNode", "NULL NULL");
    add("MFFloat", "[ 1, 2");
    add("MFFloat", "1, 2");
    add("MFFloat", "[ 1 ] 2");
    add("MFVec3f", "[ 1 2 3, 4 5 ]");
    add("MFString", "[ \"a ]");
}

void tst_SoFieldTextCheck::anythingElseIsRefusedInSilence()
{
    QFETCH(QByteArray, fieldClass);
    QFETCH(QByteArray, text);
    const auto field = make(fieldClass.constData());
    ReportLog log;
    QVERIFY(!SoFieldTextCheck::accepts(*field, SbString(text.constData())));
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldTextCheck::whatAFieldWritesIsAccepted_data()
{
    addTexts();
    for (const char* oneNumber : {"SFDouble", "SFFloat", "SFInt32", "SFShort", "SFTime", "SFUInt32",
                                  "SFUShort", "MFDouble", "MFFloat", "MFInt32"})
        add(oneNumber, "7");
    for (const char* twoNumbers : {"SFVec2d", "SFVec2f", "SFVec2s", "MFVec2f"})
        add(twoNumbers, "1 2");
    for (const char* threeNumbers : {"SFColor", "SFVec3d", "SFVec3f", "SFVec3s", "MFColor"})
        add(threeNumbers, "1 0 1");
    for (const char* fourNumbers :
         {"SFBox2f", "SFPlane", "SFRotation", "SFVec4d", "SFVec4f", "MFRotation"})
        add(fourNumbers, "0 1 0 2");
    add("SFBox3f", "0 1 2 3 4 5");
    add("SFBox3s", "0 1 2 3 4 5");
    add("SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 1 2 3 1");
    add("SFBool", "TRUE");
    add("MFBool", "[ TRUE, FALSE ]");
    add("MFVec3f", "[ 1 2 3, 4 5 6 ]");
    add("SFNode", "Cone { height 5 }");
    for (const char* text : {"SFString", "SFName", "SFFilePathString", "MFString"})
        add(text, "\"two words\"");
    for (const char* emptyAtFirst : {"SFString", "SFName", "SFNode", "SFPath", "SFEngine",
                                     "SFFilePathString", "MFFloat", "MFNode", "MFString"})
        add(emptyAtFirst, "");
}

void tst_SoFieldTextCheck::whatAFieldWritesIsAccepted()
{
    QFETCH(QByteArray, fieldClass);
    QFETCH(QByteArray, text);
    const auto field = make(fieldClass.constData());
    QVERIFY(field);
    QVERIFY(text.isEmpty() || field->set(text.constData()));
    SbString written;
    field->get(written);
    QVERIFY2(SoFieldTextCheck::accepts(*field, written), written.getString());
}

void tst_SoFieldTextCheck::aNamedValueIsAcceptedWhereTheFieldHasIt()
{
    auto* const style = new SoDrawStyle;
    style->ref();
    const SoSFEnum& enumeration = style->style;
    QVERIFY(SoFieldTextCheck::accepts(enumeration, "LINES"));
    QVERIFY(!SoFieldTextCheck::accepts(enumeration, "CURVES"));
    style->unref();
    auto* const cone = new SoCone;
    cone->ref();
    const SoSFBitMask& mask = cone->parts;
    QVERIFY(SoFieldTextCheck::accepts(mask, "SIDES"));
    QVERIFY(SoFieldTextCheck::accepts(mask, "(SIDES | BOTTOM)"));
    QVERIFY(!SoFieldTextCheck::accepts(mask, "TOP"));
    cone->unref();
    SoMFEnum list;
    int values[] = {1, 2};
    const SbName names[] = {"ONE", "TWO"};
    list.setEnums(2, values, names);
    QVERIFY(SoFieldTextCheck::accepts(list, "[ ONE, TWO ]"));
    QVERIFY(!SoFieldTextCheck::accepts(list, "[ ONE, THREE ]"));
}

void tst_SoFieldTextCheck::aLongTextIsReadWhole()
{
    const SoSFString field;
    const QByteArray quoted = '"' + QByteArray(100000, 'x') + '"';
    QVERIFY(SoFieldTextCheck::accepts(field, SbString(quoted.constData())));
    QVERIFY(!SoFieldTextCheck::accepts(field, SbString((quoted + " y").constData())));
}

void tst_SoFieldTextCheck::theFieldItselfIsNotTouched()
{
    SoSFVec3f field;
    field.setValue(1.0F, 2.0F, 3.0F);
    int notifications = 0;
    SoFieldSensor sensor([](void* count, SoSensor*) { ++*static_cast<int*>(count); },
                         &notifications);
    sensor.setPriority(0);
    sensor.attach(&field);
    QVERIFY(SoFieldTextCheck::accepts(field, "4 5 6"));
    QVERIFY(!SoFieldTextCheck::accepts(field, "4 5"));
    QCOMPARE(notifications, 0);
    QVERIFY(field.getValue() == SbVec3f(1.0F, 2.0F, 3.0F));
}

void tst_SoFieldTextCheck::theReadErrorsHandlerIsBackAfterwards()
{
    ReportLog log;
    SoErrorCB* const handler = SoReadError::getHandlerCallback();
    const SoSFBool field;
    QVERIFY(!SoFieldTextCheck::accepts(field, "MAYBE"));
    QVERIFY(SoReadError::getHandlerCallback() == handler);
    QCOMPARE(SoReadError::getHandlerData(), static_cast<void*>(&log));
}

void tst_SoFieldTextCheck::aNamedNodeInTheTextIsForgottenAgain()
{
    const SoSFNode field;
    QVERIFY(SoFieldTextCheck::accepts(field, "DEF onlyAsked Cube { }"));
    QVERIFY(!SoNode::getByName("onlyAsked"));
}

void tst_SoFieldTextCheck::aPartOfANodeKitTakesNodesOfItsTypeOnly()
{
    auto* const kit = new SoShapeKit;
    kit->ref();
    const SoField& part = *kit->getField("transform");
    QVERIFY(SoFieldTextCheck::accepts(part, "Transform { }"));
    QVERIFY(SoFieldTextCheck::accepts(part, "NULL"));
    QVERIFY(!SoFieldTextCheck::accepts(part, "Cube { }"));
    kit->unref();
}

TAVRIK_TEST_MAIN(tst_SoFieldTextCheck)
#include "tst_SoFieldTextCheck.moc"
