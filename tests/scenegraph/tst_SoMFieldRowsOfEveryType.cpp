#include "scenegraph/SoMFieldRows.h"

#include "tests/support/ReportLog.h"
#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoPath.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCone.h>

#include <QRegularExpression>

#include <memory>

namespace {

using FieldPointer = std::unique_ptr<SoMField>;

template <class Field>
bool is(const FieldPointer& field)
{
    return field->isOfType(Field::getClassTypeId());
}

bool holdsObjects(const FieldPointer& field)
{
    return is<SoMFNode>(field) || is<SoMFPath>(field) || is<SoMFEngine>(field);
}

bool holdsStrings(const FieldPointer& field)
{
    return is<SoMFString>(field) || is<SoMFName>(field);
}

/** A value that is no empty one for any type. */
void setSomething(const FieldPointer& field, int row)
{
    if (is<SoMFNode>(field))
        static_cast<SoMFNode*>(field.get())->set1Value(row, new SoCone);
    else if (is<SoMFPath>(field))
        static_cast<SoMFPath*>(field.get())->set1Value(row, new SoPath(new SoCone));
    else if (is<SoMFEngine>(field))
        static_cast<SoMFEngine*>(field.get())->set1Value(row, new SoCalculator);
    else if (is<SoMFEnum>(field))
        static_cast<SoMFEnum*>(field.get())->set1Value(row, 1);
    else
        field->set1(row, is<SoMFBool>(field) ? "TRUE" : "7 1 7 1 7 1 7 1 7 1 7 1 7 1 7 1");
}

void nameTheValues(const FieldPointer& field)
{
    static const int values[] = {0, 1};
    static const SbName names[] = {"OFF", "ON"};
    if (is<SoMFEnum>(field))
        static_cast<SoMFEnum*>(field.get())->setEnums(2, values, names);
}

QString textOf(const FieldPointer& field, int row)
{
    SbString text;
    field->get1(row, text);
    return QString::fromUtf8(text.getString()).simplified();
}

/** What the first row of an empty field holds after its insertion. */
QRegularExpression emptyValue(const FieldPointer& field)
{
    static const QHash<QString, QString> own = {
        {"MFBool", "FALSE"}, {"MFBitMask", "\\(\\)"}, {"MFEnum", "OFF"},
        {"MFName", "\"\""},  {"MFString", "\"\""},    {"MFNode", "NULL"},
        {"MFPath", "NULL"},  {"MFEngine", "NULL"},    {"MFRotation", "0 0 1 0"}};
    const QString name = field->getTypeId().getName().getString();
    const QString numbers = "(0|0x0)( (0|0x0))*";
    return QRegularExpression(QRegularExpression::anchoredPattern(own.value(name, numbers)));
}

/**
 * A field with one row in memory that held others, so that a row which nobody set shows what was
 * there before instead of what happens to be right.
 */
void useUpMemory(const FieldPointer& field, int rowsLeft)
{
    nameTheValues(field);
    for (int row = 0; row < 16; ++row)
        setSomething(field, row);
    field->deleteValues(rowsLeft, 16 - rowsLeft);
}

} // namespace

/** That no new row of any of Coin's multiple-value fields ever holds undefined memory. */
class tst_SoMFieldRowsOfEveryType : public QObject
{
    Q_OBJECT

private slots:
    void thereAreManyTypes();
    void theRowsOfAnEmptyFieldAreZero_data() { everyType(); }
    void theRowsOfAnEmptyFieldAreZero();
    void rowsAtTheEndAreCopiesOfTheLast_data() { everyType(); }
    void rowsAtTheEndAreCopiesOfTheLast();
    void rowsInTheMiddleAreCopiesOfTheNext_data() { everyType(); }
    void rowsInTheMiddleAreCopiesOfTheNext();
    void deletedRowsComeBack_data() { everyType(); }
    void deletedRowsComeBack();

private:
    static void everyType();
    static FieldPointer fetchedField();
    static void compareInserted(const FieldPointer& field, int start, int count,
                                const QString& neighbour);
};

void tst_SoMFieldRowsOfEveryType::everyType()
{
    addTypeRows(creatableTypes(SoMField::getClassTypeId()));
}

FieldPointer tst_SoMFieldRowsOfEveryType::fetchedField()
{
    return FieldPointer(newOfRowType<SoMField>());
}

void tst_SoMFieldRowsOfEveryType::compareInserted(const FieldPointer& field, int start, int count,
                                                  const QString& neighbour)
{
    const bool hasEmptyValue = holdsObjects(field) || holdsStrings(field);
    for (int row = start; row < start + count; ++row) {
        const QString text = textOf(field, row);
        if (hasEmptyValue)
            QVERIFY2(emptyValue(field).match(text).hasMatch(), qPrintable(text));
        else
            QCOMPARE(text, neighbour);
    }
}

void tst_SoMFieldRowsOfEveryType::thereAreManyTypes()
{
    QVERIFY(creatableTypes(SoMField::getClassTypeId()).size() >= 40);
}

void tst_SoMFieldRowsOfEveryType::theRowsOfAnEmptyFieldAreZero()
{
    ReportLog log; // some types report that they cannot read an empty string
    const FieldPointer field = fetchedField();
    useUpMemory(field, 0);
    QVERIFY(SoMFieldRows::insertEmpty(field.get(), 0, 5));
    QCOMPARE(field->getNum(), 5);
    for (int row = 0; row < 5; ++row) {
        const QString text = textOf(field, row);
        QVERIFY2(emptyValue(field).match(text).hasMatch(), qPrintable(text));
    }
}

void tst_SoMFieldRowsOfEveryType::rowsAtTheEndAreCopiesOfTheLast()
{
    ReportLog log;
    const FieldPointer field = fetchedField();
    useUpMemory(field, 1);
    const QString last = textOf(field, 0);
    QVERIFY(SoMFieldRows::insertEmpty(field.get(), 1, 5));
    QCOMPARE(field->getNum(), 6);
    QCOMPARE(textOf(field, 0), last);
    compareInserted(field, 1, 5, last);
}

void tst_SoMFieldRowsOfEveryType::rowsInTheMiddleAreCopiesOfTheNext()
{
    ReportLog log;
    const FieldPointer field = fetchedField();
    useUpMemory(field, 2);
    const QString next = textOf(field, 1);
    QVERIFY(SoMFieldRows::insertEmpty(field.get(), 1, 6));
    QCOMPARE(field->getNum(), 8);
    QCOMPARE(textOf(field, 0), next);
    compareInserted(field, 1, 6, next);
    QCOMPARE(textOf(field, 7), next);
}

void tst_SoMFieldRowsOfEveryType::deletedRowsComeBack()
{
    ReportLog log;
    const FieldPointer field = fetchedField();
    useUpMemory(field, 4);
    QStringList before;
    for (int row = 0; row < 4; ++row)
        before << textOf(field, row);
    SbString texts[4];
    QVERIFY(SoMFieldRows::readTexts(field.get(), 0, 4, texts));
    QVERIFY(SoMFieldRows::deleteValues(field.get(), 0, 4));
    QVERIFY(SoMFieldRows::insertTexts(field.get(), 0, 4, texts));
    QCOMPARE(field->getNum(), 4);
    // The text of a path is that of its nodes, which no field reads back as a path.
    const bool isLost = is<SoMFPath>(field);
    for (int row = 0; row < 4; ++row)
        QCOMPARE(textOf(field, row), isLost ? QString("NULL") : before[row]);
}

TAVRIK_TEST_MAIN(tst_SoMFieldRowsOfEveryType)
#include "tst_SoMFieldRowsOfEveryType.moc"
