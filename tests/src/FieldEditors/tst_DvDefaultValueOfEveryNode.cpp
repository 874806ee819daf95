#include "FieldEditors/DvDefaultValue.h"

#include "tests/support/FieldTexts.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoNode.h>

namespace {

/** The field's text, its numbers as exactly as they survive being written and read. */
QByteArrayList roundedTextOf(SoField& field)
{
    QByteArrayList words = textOf(field).split(' ');
    for (QByteArray& word : words) {
        bool isNumber = false;
        const double number = word.toDouble(&isNumber);
        if (isNumber)
            word = QByteArray::number(qAbs(number) < 1e-6 ? 0.0 : number, 'g', 5);
    }
    return words;
}

/** Every list can be emptied; a single value is only marked as no longer the default. */
void change(SoField& field)
{
    if (field.isOfType(SoMField::getClassTypeId()))
        static_cast<SoMField&>(field).setNum(0);
    field.touch();
}

} // namespace

/** Setting to the default, on each node class that Coin has. */
class tst_DvDefaultValueOfEveryNode : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldGoesBackToItsDefault_data();
    void everyFieldGoesBackToItsDefault();
};

void tst_DvDefaultValueOfEveryNode::everyFieldGoesBackToItsDefault_data()
{
    QTest::addColumn<QByteArray>("type");
    SoTypeList types;
    SoType::getAllDerivedFrom(SoNode::getClassTypeId(), types);
    for (int i = 0; i < types.getLength(); ++i)
        if (types[i].canCreateInstance())
            QTest::newRow(types[i].getName().getString()) << QByteArray(types[i].getName());
}

void tst_DvDefaultValueOfEveryNode::everyFieldGoesBackToItsDefault()
{
    RecordingServices services;
    QFETCH(QByteArray, type);
    auto* const node = static_cast<SoNode*>(SoType::fromName(type.constData()).createInstance());
    node->ref();
    SoFieldList fields;
    node->getFields(fields);
    for (int i = 0; i < fields.getLength(); ++i) {
        SoField& field = *fields[i];
        const QByteArrayList defaultText = roundedTextOf(field);
        change(field);
        DvDefaultValue::restore(field);
        SbName name;
        node->getFieldName(&field, name);
        QVERIFY2(field.isDefault(), name.getString());
        QVERIFY2(roundedTextOf(field) == defaultText, name.getString());
    }
    QCOMPARE(services.count(), fields.getLength());
    node->unref();
}

TAVRIK_TEST_MAIN(tst_DvDefaultValueOfEveryNode)
#include "tst_DvDefaultValueOfEveryNode.moc"
