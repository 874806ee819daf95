#include "FieldEditors/TvkFieldIgnoredCommand.h"
#include "FieldEditors/TvkFieldSetDefaultCommand.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/StringRows.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>

/** The commands of a field's two buttons. */
class tst_FieldButtonCommands : public QObject
{
    Q_OBJECT

private slots:
    void ignoringIsUndoneAndRedone();
    void anIgnoredFieldKeepsItsValue();
    void keepsUndoNegatingTheFlagOfAnEditThatChangedNothing();

    void keepsTheDefaultWhenUndone();
    void aFieldSetToItsDefaultIsAtItsDefault();
    void aFieldIsAtItsDefaultAlsoWhenThatIsUndone();
    void aTextBeforeThatIsNotTheDefaultComesBack();
    void keepsWhetherTheFieldIsMultiple();
    void aDefaultListOfHardStringsIsSet();
    void aDefaultOfNoNodeIsSet();
    void aRefusedDefaultLeavesTheFieldChanged();
};

void tst_FieldButtonCommands::ignoringIsUndoneAndRedone()
{
    SoSFFloat field;
    field.setIgnored(TRUE);
    TvkFieldIgnoredCommand command(&field, true);
    command.execute();
    QVERIFY(field.isIgnored());
    command.undo();
    QVERIFY(!field.isIgnored());
    command.redo();
    QVERIFY(field.isIgnored());
}

void tst_FieldButtonCommands::anIgnoredFieldKeepsItsValue()
{
    SoMFFloat field;
    field.set("[ 1, 2 ]");
    TvkFieldIgnoredCommand command(&field, true);
    command.execute();
    QCOMPARE(textOf(field), QByteArray("[ 1, 2 ]"));
    command.undo();
    QCOMPARE(textOf(field), QByteArray("[ 1, 2 ]"));
}

void tst_FieldButtonCommands::keepsUndoNegatingTheFlagOfAnEditThatChangedNothing()
{
    SoSFFloat field;
    TvkFieldIgnoredCommand command(&field, false);
    command.execute();
    QVERIFY(!field.isIgnored());
    command.undo();
    QVERIFY(field.isIgnored());
}

void tst_FieldButtonCommands::keepsTheDefaultWhenUndone()
{
    SoSFFloat field;
    SoSFFloat defaultField;
    defaultField.setValue(2.0F);
    field.setValue(7.0F);
    field.setValue(2.0F);
    TvkFieldSetDefaultCommand command(&field, &defaultField);
    command.execute();
    field.setValue(9.0F);
    command.undo();
    QCOMPARE(textOf(field), QByteArray("2"));
}

void tst_FieldButtonCommands::aFieldSetToItsDefaultIsAtItsDefault()
{
    auto* const cone = new SoCone;
    cone->ref();
    cone->height.setValue(5.0F);
    SoSFFloat defaultField;
    defaultField.setValue(2.0F);
    TvkFieldSetDefaultCommand command(&cone->height, &defaultField);
    command.execute();
    QVERIFY(cone->height.isDefault());
    command.undo();
    command.redo();
    QVERIFY(cone->height.isDefault());
    cone->unref();
}

void tst_FieldButtonCommands::aFieldIsAtItsDefaultAlsoWhenThatIsUndone()
{
    auto* const cone = new SoCone;
    cone->ref();
    SoSFFloat defaultField;
    defaultField.setValue(2.0F);
    cone->height.setValue(2.0F);
    TvkFieldSetDefaultCommand command(&cone->height, &defaultField);
    command.execute();
    command.undo();
    QCOMPARE(textOf(cone->height), QByteArray("2"));
    QVERIFY(cone->height.isDefault());
    cone->unref();
}

void tst_FieldButtonCommands::aTextBeforeThatIsNotTheDefaultComesBack()
{
    SoSFFloat field;
    SoSFFloat defaultField;
    defaultField.setValue(2.0F);
    field.setValue(7.0F);
    TvkFieldSetDefaultCommand command(&field, &defaultField);
    command.execute();
    command.undo();
    QCOMPARE(textOf(field), QByteArray("7"));
    QVERIFY(!field.isDefault());
}

void tst_FieldButtonCommands::keepsWhetherTheFieldIsMultiple()
{
    SoSFFloat single;
    single.setValue(1.0F);
    SoMFFloat multiple;
    QVERIFY(!TvkFieldSetDefaultCommand(&single, &single).isMultiple());
    QVERIFY(TvkFieldSetDefaultCommand(&multiple, &multiple).isMultiple());
}

void tst_FieldButtonCommands::aDefaultListOfHardStringsIsSet()
{
    const QList<QByteArray> hard = {"ends in \\", "a \"quote\"",
                                    "\xc3\xa4 \xe2\x82\xac \xf0\x9d\x84\x9e"};
    SoMFString defaultField;
    fillWithStrings(defaultField, hard);
    SoMFString field;
    field.set1Value(0, "other");
    TvkFieldSetDefaultCommand command(&field, &defaultField);
    command.execute();
    QCOMPARE(stringsOf(field), hard);
}

void tst_FieldButtonCommands::aDefaultOfNoNodeIsSet()
{
    SoSFNode field;
    field.setValue(new SoCube);
    SoSFNode defaultField;
    TvkFieldSetDefaultCommand command(&field, &defaultField);
    command.execute();
    QVERIFY(!field.getValue());
}

void tst_FieldButtonCommands::aRefusedDefaultLeavesTheFieldChanged()
{
    SoSFFloat field;
    field.setValue(1.0F);
    SoSFString noNumber;
    noNumber.setValue("two");
    TvkFieldSetDefaultCommand command(&field, &noNumber);
    command.execute();
    QVERIFY(!field.isDefault());
}

TAVRIK_TEST_MAIN(tst_FieldButtonCommands)
#include "tst_FieldButtonCommands.moc"
