#include "FieldEditors/DvDefaultValue.h"

#include "tests/support/FieldTexts.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"

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
    addTypeRows(creatableTypes(SoNode::getClassTypeId()));
}

void tst_DvDefaultValueOfEveryNode::everyFieldGoesBackToItsDefault()
{
    RecordingServices services;
    auto* const node = newOfRowType<SoNode>();
    node->ref();
    const QVector<SoField*> fields = fieldsOf<SoField>(*node);
    for (SoField* each : fields) {
        SoField& field = *each;
        const QByteArrayList defaultText = roundedTextOf(field);
        change(field);
        DvDefaultValue::restore(field);
        const QByteArray name = nameOf(*node, field);
        QVERIFY2(field.isDefault(), name.constData());
        QVERIFY2(roundedTextOf(field) == defaultText, name.constData());
    }
    QCOMPARE(services.count(), fields.size());
    node->unref();
}

TAVRIK_TEST_MAIN(tst_DvDefaultValueOfEveryNode)
#include "tst_DvDefaultValueOfEveryNode.moc"
