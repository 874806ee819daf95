#include "FieldEditors/TvkFieldIgnoredCommand.h"
#include "FieldEditors/TvkFieldSetDefaultCommand.h"
#include "FieldEditors/TvkMFAddRowsCommand.h"
#include "FieldEditors/TvkMFDeleteRowsCommand.h"
#include "FieldEditors/TvkMFSetFieldValueCommand.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"
#include "FieldEditors/TvkSFSetValueCommand.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>

#include <functional>
#include <memory>

namespace {

using CommandPtr = std::unique_ptr<TvkCommand>;

/** What is to be seen after one of a command's three operations. */
struct Outcome
{
    const char* state;
    int notifications;
};

/** One member of the family, as its creator uses it. */
struct Member
{
    const char* name;
    const char* fieldClass;
    const char* start;
    std::function<void(SoField&)> widgetWrites;
    std::function<TvkCommand*(SoField&)> make;
    const char* written; ///< the state that the widget leaves
    Outcome executed;
    Outcome undone;
    Outcome redone;
};

/** The field's text, and its ignore flag behind it where that is set. */
QByteArray stateOf(SoField& field)
{
    return textOf(field) + (field.isIgnored() ? " ignored" : "");
}

SoMField* rowsOf(SoField& field)
{
    return static_cast<SoMField*>(&field);
}

void writeNothing(SoField&) {}

std::function<void(SoField&)> write(const char* text)
{
    return [text](SoField& field) { field.set(text); };
}

std::function<void(SoField&)> write1(int row, const char* text)
{
    return [row, text](SoField& field) { rowsOf(field)->set1(row, text); };
}

std::function<TvkCommand*(SoField&)> setValue(const char* previous)
{
    return [previous](SoField& field) {
        SbString text(previous);
        return new TvkSFSetValueCommand(&field, text);
    };
}

std::function<TvkCommand*(SoField&)> setRow(int row, const char* previous)
{
    return [row, previous](SoField& field) {
        SbString text(previous);
        return new TvkMFSetValueCommand(rowsOf(field), row, text);
    };
}

template <class Command>
std::function<TvkCommand*(SoField&)> rows(int first, int second)
{
    return [=](SoField& field) { return new Command(rowsOf(field), first, second); };
}

TvkCommand* setColour(SoField& field)
{
    return new TvkMFSetFieldValueCommand(rowsOf(field), 1);
}

TvkCommand* ignore(SoField& field)
{
    return new TvkFieldIgnoredCommand(&field, true);
}

TvkCommand* regard(SoField& field)
{
    return new TvkFieldIgnoredCommand(&field, false);
}

/** The field that holds the default lives no longer than the command's constructor. */
template <class Field>
std::function<TvkCommand*(SoField&)> setDefault(const char* text)
{
    return [text](SoField& field) {
        Field defaultField;
        defaultField.set(text);
        return new TvkFieldSetDefaultCommand(&field, &defaultField);
    };
}

const QVector<Member>& family()
{
    static const QVector<Member> s_family = {
        {"set value, text before given",
         "SFFloat",
         "1",
         write("2.5"),
         setValue("1"),
         "2.5",
         {"2.5", 0},
         {"1", 1},
         {"2.5", 1}},
        {"set value, no text before",
         "SFBool",
         "FALSE",
         write("TRUE"),
         setValue(""),
         "TRUE",
         {"TRUE", 0},
         {"TRUE", 1},
         {"TRUE", 1}},
        {"set row, text before given",
         "MFVec3f",
         "[ 1 2 3, 4 5 6 ]",
         write1(1, "7 8 9"),
         setRow(1, "4 5 6"),
         "[ 1 2 3, 7 8 9 ]",
         {"[ 1 2 3, 7 8 9 ]", 0},
         {"[ 1 2 3, 4 5 6 ]", 1},
         {"[ 1 2 3, 7 8 9 ]", 1}},
        {"set row, no text before",
         "MFInt32",
         "[ 1, 2, 3 ]",
         write1(0, "9"),
         setRow(0, ""),
         "[ 9, 2, 3 ]",
         {"[ 9, 2, 3 ]", 0},
         {"[ 9, 2, 3 ]", 1},
         {"[ 9, 2, 3 ]", 1}},
        {"set colour",
         "MFColor",
         "[ 0 0 0, 1 1 1 ]",
         write1(1, "1 0 0"),
         setColour,
         "[ 0 0 0, 1 0 0 ]",
         {"[ 0 0 0, 1 0 0 ]", 0},
         {"[ 0 0 0, 1 0 0 ]", 1},
         {"[ 0 0 0, 1 0 0 ]", 1}},
        // A row's text, for each row, stands between the insertion and the summary.
        {"add rows of text",
         "MFString",
         "[ \"a\", \"b\" ]",
         writeNothing,
         rows<TvkMFAddRowsCommand>(1, 2),
         "[ \"a\", \"b\" ]",
         {"[ \"a\", \"\", \"\", \"b\" ]", 4},
         {"[ \"a\", \"b\" ]", 1},
         {"[ \"a\", \"\", \"\", \"b\" ]", 4}},
        // Numbers refuse the empty text, without a notification.
        {"add rows of numbers",
         "MFFloat",
         "[ 1, 2 ]",
         writeNothing,
         rows<TvkMFAddRowsCommand>(0, 1),
         "[ 1, 2 ]",
         {"[ 1, 1, 2 ]", 2},
         {"[ 1, 2 ]", 1},
         {"[ 1, 1, 2 ]", 2}},
        {"delete rows",
         "MFVec2f",
         "[ 0 0, 1 1, 2 2, 3 3 ]",
         writeNothing,
         rows<TvkMFDeleteRowsCommand>(1, 2),
         "[ 0 0, 1 1, 2 2, 3 3 ]",
         {"[ 0 0, 3 3 ]", 1},
         {"[ 0 0, 1 1, 2 2, 3 3 ]", 3},
         {"[ 0 0, 3 3 ]", 1}},
        {"swap rows",
         "MFString",
         "[ \"a\", \"b\", \"c\" ]",
         writeNothing,
         rows<TvkMFSwapRowsCommand>(0, 2),
         "[ \"a\", \"b\", \"c\" ]",
         {"[ \"c\", \"b\", \"a\" ]", 2},
         {"[ \"a\", \"b\", \"c\" ]", 2},
         {"[ \"c\", \"b\", \"a\" ]", 2}},
        {"ignore",
         "SFFloat",
         "1",
         [](SoField& field) { field.setIgnored(TRUE); },
         ignore,
         "1 ignored",
         {"1 ignored", 0},
         {"1", 1},
         {"1 ignored", 1}},
        {"ignore no longer",
         "SFFloat",
         "1",
         [](SoField& field) { field.setIgnored(FALSE); },
         regard,
         "1",
         {"1", 0},
         {"1 ignored", 1},
         {"1", 1}},
        {"set default",
         "SFFloat",
         "1",
         write("2"),
         setDefault<SoSFFloat>("2"),
         "2",
         {"2", 1},
         {"2", 1},
         {"2", 1}},
        // A list is set in two notifications by Coin.
        {"set default rows",
         "MFInt32",
         "[ 1, 2 ]",
         write("[ 3, 4, 5 ]"),
         setDefault<SoMFInt32>("[ 3, 4, 5 ]"),
         "[ 3, 4, 5 ]",
         {"[ 3, 4, 5 ]", 2},
         {"[ 3, 4, 5 ]", 2},
         {"[ 3, 4, 5 ]", 2}},
    };
    return s_family;
}

} // namespace

/** What holds for every undo command, one row a member and way of using it. */
class tst_CommandContract : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandHasARow();
    void makingItWritesNothing_data() { addRows(); }
    void makingItWritesNothing();
    void itTellsItsField_data() { addRows(); }
    void itTellsItsField();
    void eachStepLeavesItsStateAndNotifications_data() { addRows(); }
    void eachStepLeavesItsStateAndNotifications();
    void tenUndosAndRedosAreStable_data() { addRows(); }
    void tenUndosAndRedosAreStable();
    void destroyingItLeavesTheFieldAlone_data() { addRows(); }
    void destroyingItLeavesTheFieldAlone();
    void itMayOutliveItsField_data() { addRows(); }
    void itMayOutliveItsField();

private:
    static void addRows();
    static const Member& member();
    /** The field after the widget's own write. */
    static std::unique_ptr<SoField> writtenField();
};

void tst_CommandContract::addRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < family().size(); ++i)
        QTest::newRow(family().at(i).name) << i;
}

const Member& tst_CommandContract::member()
{
    QFETCH(int, index);
    return family().at(index);
}

std::unique_ptr<SoField> tst_CommandContract::writtenField()
{
    const SoType type = SoType::fromName(member().fieldClass);
    std::unique_ptr<SoField> field(static_cast<SoField*>(type.createInstance()));
    if (field && field->set(member().start))
        member().widgetWrites(*field);
    return field;
}

void tst_CommandContract::everyCommandHasARow()
{
    QSet<QByteArray> classes;
    for (const Member& each : family()) {
        const SoType type = SoType::fromName(each.fieldClass);
        const std::unique_ptr<SoField> field(static_cast<SoField*>(type.createInstance()));
        QVERIFY2(field && field->set(each.start), each.name);
        const CommandPtr command(each.make(*field));
        classes << typeid(*command.get()).name();
    }
    QCOMPARE(classes.size(), 8);
}

void tst_CommandContract::makingItWritesNothing()
{
    const auto field = writtenField();
    NotificationCounter counter(*field);
    const CommandPtr command(member().make(*field));
    QCOMPARE(stateOf(*field), QByteArray(member().written));
    QCOMPARE(counter.take(), 0);
}

void tst_CommandContract::itTellsItsField()
{
    const auto field = writtenField();
    const CommandPtr command(member().make(*field));
    QCOMPARE(command->getField(), field.get());
}

void tst_CommandContract::eachStepLeavesItsStateAndNotifications()
{
    const auto field = writtenField();
    NotificationCounter counter(*field);
    const CommandPtr command(member().make(*field));
    command->execute();
    QCOMPARE(stateOf(*field), QByteArray(member().executed.state));
    QCOMPARE(counter.take(), member().executed.notifications);
    for (int round = 0; round < 2; ++round) {
        command->undo();
        QCOMPARE(stateOf(*field), QByteArray(member().undone.state));
        QCOMPARE(counter.take(), member().undone.notifications);
        command->redo();
        QCOMPARE(stateOf(*field), QByteArray(member().redone.state));
        QCOMPARE(counter.take(), member().redone.notifications);
    }
}

void tst_CommandContract::tenUndosAndRedosAreStable()
{
    const auto field = writtenField();
    const CommandPtr command(member().make(*field));
    command->execute();
    for (int round = 0; round < 10; ++round) {
        command->undo();
        QCOMPARE(stateOf(*field), QByteArray(member().undone.state));
        command->redo();
        QCOMPARE(stateOf(*field), QByteArray(member().redone.state));
    }
}

void tst_CommandContract::destroyingItLeavesTheFieldAlone()
{
    const auto field = writtenField();
    CommandPtr command(member().make(*field));
    command->execute();
    command->undo();
    NotificationCounter counter(*field);
    command.reset();
    QCOMPARE(stateOf(*field), QByteArray(member().undone.state));
    QCOMPARE(counter.take(), 0);
}

void tst_CommandContract::itMayOutliveItsField()
{
    auto field = writtenField();
    const SoField* const address = field.get();
    CommandPtr command(member().make(*field));
    command->execute();
    field.reset();
    QCOMPARE(command->getField(), address);
    command.reset(); // the sanitizer would see it reach for the field
}

TAVRIK_TEST_MAIN(tst_CommandContract)
#include "tst_CommandContract.moc"
