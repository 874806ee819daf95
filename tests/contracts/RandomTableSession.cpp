#include "tests/contracts/RandomTableSession.h"
#include "tests/support/CaughtStderr.h"

#include <Inventor/fields/SoMFRotation.h>

namespace {

constexpr int s_mostRows = 9;

bool has(const QList<QByteArray>& rows, int first, int count)
{
    return first >= 0 && count >= 0 && first + count <= rows.size();
}

/** Everything that undoes, redoes or writes rows that are not there does nothing. */
void removeRows(QList<QByteArray>& rows, int first, int count)
{
    if (has(rows, first, count))
        rows.erase(rows.begin() + first, rows.begin() + first + count);
}

void insertRows(QList<QByteArray>& rows, int first, const QList<QByteArray>& texts)
{
    if (first > rows.size())
        return;
    for (int i = 0; i < texts.size(); ++i)
        rows.insert(first + i, texts[i]);
}

void swapRows(QList<QByteArray>& rows, int left, int right)
{
    if (has(rows, left, 1) && has(rows, right, 1))
        rows.swapItemsAt(left, right);
}

void setRow(QList<QByteArray>& rows, int row, const QByteArray& text)
{
    if (has(rows, row, 1))
        rows[row] = text;
}

QByteArray rowText(SoMField& field, int row)
{
    return rowTextsOf(field)[row].simplified();
}

} // namespace

RandomTableSession::RandomTableSession(const TableRow& row, quint32 seed)
    : m_row(row), m_field(row.field), m_isMatrix(m_field == "mfMatrix"),
      m_isString(m_field == "mfString"), m_isRotation(m_field == "mfRotation"),
      m_editor(row.make()), m_rig(*m_editor, row.field), m_random(seed), m_default(m_rig.rows()),
      m_expected(m_default)
{}

QString RandomTableSession::step()
{
    struct Kind
    {
        int weight;
        QString (RandomTableSession::*take)();
    };
    static const Kind s_kinds[] = {
        {14, &RandomTableSession::add},          {12, &RandomTableSession::deleteOne},
        {4, &RandomTableSession::deleteRange},   {6, &RandomTableSession::move},
        {5, &RandomTableSession::swap},          {17, &RandomTableSession::edit},
        {18, &RandomTableSession::undo},         {14, &RandomTableSession::redo},
        {5, &RandomTableSession::changeOutside}, {2, &RandomTableSession::resizeOutside},
        {2, &RandomTableSession::setToDefault},  {1, &RandomTableSession::die},
    };
    int chosen = m_random.bounded(100);
    for (const Kind& kind : s_kinds) {
        if (chosen < kind.weight)
            return (this->*kind.take)();
        chosen -= kind.weight;
    }
    Q_UNREACHABLE();
}

void RandomTableSession::beginUserStep()
{
    TableRig::runSensors();
    TableRig::settle();
    m_changes.resize(m_done);
    m_rig.host.services.commands.resize(m_done);
}

void RandomTableSession::pushed(Change change)
{
    m_changes.push_back(std::move(change));
    m_done = m_changes.size();
}

void RandomTableSession::insertNew(Rows& rows, int place) const
{
    if (place > rows.size())
        return;
    const bool isCopy = m_row.copiesWhenAdding && !rows.isEmpty();
    rows.insert(place,
                isCopy ? rows[std::min(place, rows.size() - 1)] : QByteArray(m_row.emptyRow));
}

void RandomTableSession::setCurrent(int row) const
{
    m_rig.table().setFocus();
    m_rig.table().setCurrentCell(row, row < 0 ? -1 : 0);
    TableRig::settle();
}

void RandomTableSession::noteAdded()
{
    const int place = m_rig.table().currentRow() + 1;
    m_rig.click("m_addButton");
    insertNew(m_expected, place);
    pushed({[place](Rows& rows) { removeRows(rows, place, 1); },
            [this, place](Rows& rows) { insertNew(rows, place); }});
}

QString RandomTableSession::add()
{
    if (m_expected.size() > s_mostRows)
        return deleteOne();
    beginUserStep();
    const int current = m_random.bounded(-1, m_expected.size());
    setCurrent(current);
    noteAdded();
    return QStringLiteral("add after %1").arg(current);
}

QString RandomTableSession::deleteOne()
{
    beginUserStep();
    if (m_expected.isEmpty()) {
        m_rig.click("m_deleteButton");
        return QStringLiteral("delete of nothing");
    }
    const int row = anyRow();
    setCurrent(row);
    const Rows deleted = {m_expected[row]};
    QTest::keyClick(&m_rig.table(), m_random.bounded(2) ? Qt::Key_Minus : Qt::Key_Delete);
    removeRows(m_expected, row, 1);
    pushed({[=](Rows& rows) { insertRows(rows, row, deleted); },
            [=](Rows& rows) { removeRows(rows, row, 1); }});
    return QStringLiteral("delete %1").arg(row);
}

QString RandomTableSession::deleteRange()
{
    if (m_expected.isEmpty())
        return add();
    beginUserStep();
    const int first = anyRow();
    const int count = m_random.bounded(1, m_expected.size() - first + 1);
    setCurrent(first);
    DvMFieldTable& table = m_rig.table();
    QTest::keyPress(&table, Qt::Key_Shift);
    table.clearSelection();
    table.setRangeSelected({first, 0, first + count - 1, table.columnCount() - 1}, true);
    QTest::keyClick(&table, Qt::Key_Delete, Qt::ShiftModifier);
    QTest::keyRelease(&table, Qt::Key_Shift);
    const Rows deleted = m_expected.mid(first, count);
    removeRows(m_expected, first, count);
    pushed({[=](Rows& rows) { insertRows(rows, first, deleted); },
            [=](Rows& rows) { removeRows(rows, first, count); }});
    return QStringLiteral("delete %1 rows from %2").arg(count).arg(first);
}

QString RandomTableSession::move()
{
    if (m_expected.isEmpty())
        return add();
    beginUserStep();
    const int row = anyRow();
    const int to = m_random.bounded(2) ? row - 1 : row + 1;
    m_rig.accessBox().setValue(row + 1);
    {
        const CaughtStderr trace;
        m_rig.click(to < row ? "m_upButton" : "m_downButton");
    }
    if (has(m_expected, to, 1)) {
        const auto exchange = [=](Rows& rows) { swapRows(rows, row, to); };
        exchange(m_expected);
        pushed({exchange, exchange});
    }
    return QStringLiteral("move %1 to %2").arg(row).arg(to);
}

QString RandomTableSession::swap()
{
    if (m_expected.isEmpty())
        return add();
    beginUserStep();
    const int left = anyRow();
    const int right = m_random.bounded(-1, m_expected.size() + 1);
    m_editor->swapRows(left, right);
    if (has(m_expected, right, 1)) {
        const auto exchange = [=](Rows& rows) { swapRows(rows, left, right); };
        exchange(m_expected);
        if (m_row.swapsByCommand)
            pushed({exchange, exchange});
    }
    return QStringLiteral("swap %1 and %2").arg(left).arg(right);
}

QString RandomTableSession::anyTyped()
{
    if (m_isString) {
        static const char* const s_texts[] = {"a", "a b", "\"", "x\\", "[1, 2]", " ", "#"};
        return QString::fromLatin1(s_texts[m_random.bounded(int(std::size(s_texts)))]);
    }
    // Numbers that their text is exact for, in every type.
    return QString::number(m_random.bounded(1, 100));
}

int RandomTableSession::anyColumn()
{
    // A plane's normal is given the length 1; its distance is not.
    if (m_field == "mfPlane")
        return 3;
    return m_random.bounded(m_isMatrix ? 16 : m_row.headers.size());
}

QByteArray RandomTableSession::afterTyping(int row, int column, const QString& typed) const
{
    if (m_isString)
        return '"' + typed.toUtf8().replace('"', "\\\"") + '"';
    // A cell is typed into in the base that it shows.
    if (m_field.startsWith("mfU"))
        return "0x" + typed.toLatin1();
    if (m_isRotation) {
        // Of two quaternions that mean the same, the text does not say which it is.
        SbRotation rotation = (*static_cast<SoMFRotation*>(m_rig.field))[row];
        float q[4];
        std::copy_n(rotation.getValue(), 4, q);
        q[column] = typed.toFloat();
        SoMFRotation scratch;
        scratch.setValue(SbRotation(q[0], q[1], q[2], q[3]));
        return rowText(scratch, 0);
    }
    QList<QByteArray> numbers = m_expected[row].split(' ');
    numbers[column] = typed.toLatin1();
    return numbers.join(' ');
}

void RandomTableSession::noteWritten(int row, const QByteArray& text)
{
    m_expected[row] = text;
    const auto write = [=](Rows& rows) { setRow(rows, row, text); };
    if (m_row.edit.commands > 0)
        pushed({write, write});
}

QString RandomTableSession::edit()
{
    if (m_expected.isEmpty())
        return add();
    beginUserStep();
    const int row = anyRow();
    const int column = anyColumn();
    const QString typed = anyTyped();
    const QByteArray text = afterTyping(row, column, typed);
    const auto ending = Ending(m_random.bounded(Death + 1));
    if (m_isMatrix) {
        typeIntoPopup(row, column, typed);
        endPopup(ending, row, text);
    } else {
        m_rig.type(row, column, typed);
        endCell(ending, row, text);
    }
    return QStringLiteral("type %1 into %2, %3; ending %4")
        .arg(typed)
        .arg(row)
        .arg(column)
        .arg(ending);
}

void RandomTableSession::endCell(Ending ending, int row, const QByteArray& text)
{
    static const std::map<Ending, int> s_keys = {
        {Return, Qt::Key_Return}, {Tab, Qt::Key_Tab}, {Escape, Qt::Key_Escape}};
    if (ending == Death) {
        die();
        return;
    }
    if (ending != Escape)
        noteWritten(row, text);
    const auto key = s_keys.find(ending);
    if (key != s_keys.end())
        QTest::keyClick(m_rig.openLine(), Qt::Key(key->second));
    else if (ending == Leave)
        m_rig.leave();
    else if (ending == AddRow && m_expected.size() <= s_mostRows)
        noteAdded();
    else
        m_rig.edit(*m_rig.field);
    TableRig::settle();
}

void RandomTableSession::typeIntoPopup(int row, int element, const QString& typed) const
{
    m_rig.table().setCurrentCell(row, 0);
    m_rig.click("m_editButton");
    const auto lines =
        m_editor->getWidget()->findChildren<QLineEdit*>(QStringLiteral("m_popupLine"));
    lines[element]->setFocus();
    lines[element]->selectAll();
    QTest::keyClicks(lines[element], typed);
}

void RandomTableSession::endPopup(Ending ending, int row, const QByteArray& text)
{
    if (ending == Death) {
        die();
        return;
    }
    if (ending == Escape)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    else
        noteWritten(row, text);
    if (ending == Return)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    m_rig.find<QWidget>("m_popupFrame")->hide();
}

QString RandomTableSession::undo()
{
    if (m_done == 0)
        return QStringLiteral("nothing to undo");
    --m_done;
    m_rig.host.services.undo(static_cast<int>(m_done));
    m_changes[m_done].undo(m_expected);
    return QStringLiteral("undo");
}

QString RandomTableSession::redo()
{
    if (m_done == m_changes.size())
        return QStringLiteral("nothing to redo");
    m_rig.host.services.redo(static_cast<int>(m_done));
    m_changes[m_done].redo(m_expected);
    ++m_done;
    return QStringLiteral("redo");
}

QString RandomTableSession::changeOutside()
{
    if (m_expected.isEmpty())
        return add();
    const int row = anyRow();
    const QByteArray& text = m_default[m_random.bounded(m_default.size())];
    m_rig.field->set1(row, text.constData());
    m_expected[row] = text;
    return QStringLiteral("%1 becomes %2 from outside").arg(row).arg(QString(text));
}

QString RandomTableSession::resizeOutside()
{
    const int rows = m_random.bounded(m_expected.size() + 1);
    m_rig.field->setNum(rows);
    removeRows(m_expected, rows, m_expected.size() - rows);
    return QStringLiteral("%1 rows are left from outside").arg(rows);
}

QString RandomTableSession::setToDefault()
{
    beginUserStep();
    m_rig.click("m_defaultButton");
    m_expected = m_default;
    const auto restore = [this](Rows& rows) { rows = m_default; };
    pushed({restore, restore});
    return QStringLiteral("set to default");
}

QString RandomTableSession::die()
{
    // A host drops the commands of a dying container.
    m_rig.host.services.commands.clear();
    m_changes.clear();
    m_done = 0;
    m_rig.killNode();
    if (m_random.bounded(2))
        m_rig.leave();
    m_rig.reviveNode(m_row.field);
    m_expected = m_default;
    return QStringLiteral("death");
}

bool RandomTableSession::isSame(const QByteArray& left, const QByteArray& right) const
{
    if (left == right)
        return true;
    if (!m_isRotation)
        return false;
    SoMFRotation rotations;
    rotations.set1(0, left.constData());
    rotations.set1(1, right.constData());
    const SbRotation opposite((SbVec4f(rotations[1].getValue()) * -1.0F).getValue());
    constexpr float tolerance = 1e-4F;
    return rotations[0].equals(rotations[1], tolerance) || rotations[0].equals(opposite, tolerance);
}

QString RandomTableSession::difference()
{
    const Rows rows = m_rig.rows();
    if (!std::equal(rows.begin(), rows.end(), m_expected.begin(), m_expected.end(),
                    [this](const auto& left, const auto& right) { return isSame(left, right); }))
        return QStringLiteral("the field holds %1 instead of %2")
            .arg(QString(rows.join(", ")), QString(m_expected.join(", ")));
    if (m_rig.host.services.commands.size() != m_changes.size())
        return QStringLiteral("%1 commands instead of %2")
            .arg(m_rig.host.services.commands.size())
            .arg(m_changes.size());
    // Now and then several changes come before the table hears of them.
    if (m_random.bounded(3) == 0)
        return {};
    TableRig::runSensors();
    // The event loop runs as well, and everything is painted.
    if (m_random.bounded(16) == 0)
        QCoreApplication::processEvents();
    const DvMFieldTable& table = m_rig.table();
    if (table.rowCount() != rows.size() || m_rig.accessBox().maximum() != rows.size())
        return QStringLiteral("the table has %1 rows").arg(table.rowCount());
    if (table.currentRow() >= 0 && m_rig.accessBox().value() != table.currentRow() + 1)
        return QStringLiteral("the spin box says %1 in row %2")
            .arg(m_rig.accessBox().value())
            .arg(table.currentRow());
    for (int row = 0; row < rows.size(); ++row) {
        if (table.item(row, 0)->text() != m_editor->cellText(row, 0))
            return QStringLiteral("row %1 shows %2").arg(row).arg(table.item(row, 0)->text());
    }
    return {};
}
