#include "tests/contracts/CommandRows.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>

#include <memory>

namespace {

using CommandPtr = std::unique_ptr<TvkCommand>;

/** The field's text, and its ignore flag behind it where that is set. */
QByteArray stateOf(SoField& field)
{
    return textOf(field) + (field.isIgnored() ? " ignored" : "");
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
    static const CommandRow& row();
    /** The field after the widget's own write. */
    static std::unique_ptr<SoField> writtenField();
};

void tst_CommandContract::addRows()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const CommandRow& each : commandRows())
        QTest::newRow(each.name) << index++;
}

const CommandRow& tst_CommandContract::row()
{
    QFETCH(int, index);
    return commandRows().at(static_cast<std::size_t>(index));
}

std::unique_ptr<SoField> tst_CommandContract::writtenField()
{
    const SoType type = SoType::fromName(row().fieldClass);
    std::unique_ptr<SoField> field(static_cast<SoField*>(type.createInstance()));
    if (field && field->set(row().start))
        row().widgetWrites(*field);
    return field;
}

void tst_CommandContract::everyCommandHasARow()
{
    QSet<QByteArray> classes;
    for (const CommandRow& each : commandRows()) {
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
    const CommandPtr command(row().make(*field));
    QCOMPARE(stateOf(*field), QByteArray(row().written));
    QCOMPARE(counter.take(), 0);
}

void tst_CommandContract::itTellsItsField()
{
    const auto field = writtenField();
    const CommandPtr command(row().make(*field));
    QCOMPARE(command->getField(), field.get());
}

void tst_CommandContract::eachStepLeavesItsStateAndNotifications()
{
    const auto field = writtenField();
    NotificationCounter counter(*field);
    const CommandPtr command(row().make(*field));
    command->execute();
    QCOMPARE(stateOf(*field), QByteArray(row().executed.state));
    QCOMPARE(counter.take(), row().executed.notifications);
    for (int round = 0; round < 2; ++round) {
        command->undo();
        QCOMPARE(stateOf(*field), QByteArray(row().undone.state));
        QCOMPARE(counter.take(), row().undone.notifications);
        command->redo();
        QCOMPARE(stateOf(*field), QByteArray(row().redone.state));
        QCOMPARE(counter.take(), row().redone.notifications);
    }
}

void tst_CommandContract::tenUndosAndRedosAreStable()
{
    const auto field = writtenField();
    const CommandPtr command(row().make(*field));
    command->execute();
    for (int round = 0; round < 10; ++round) {
        command->undo();
        QCOMPARE(stateOf(*field), QByteArray(row().undone.state));
        command->redo();
        QCOMPARE(stateOf(*field), QByteArray(row().redone.state));
    }
}

void tst_CommandContract::destroyingItLeavesTheFieldAlone()
{
    const auto field = writtenField();
    CommandPtr command(row().make(*field));
    command->execute();
    command->undo();
    NotificationCounter counter(*field);
    command.reset();
    QCOMPARE(stateOf(*field), QByteArray(row().undone.state));
    QCOMPARE(counter.take(), 0);
}

void tst_CommandContract::itMayOutliveItsField()
{
    auto field = writtenField();
    const SoField* const address = field.get();
    CommandPtr command(row().make(*field));
    command->execute();
    field.reset();
    QCOMPARE(command->getField(), address);
    command.reset(); // the sanitizer would see it reach for the field
}

TAVRIK_TEST_MAIN(tst_CommandContract)
#include "tst_CommandContract.moc"
