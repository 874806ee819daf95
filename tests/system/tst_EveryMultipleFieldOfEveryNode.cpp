#include "tests/support/FieldTexts.h"
#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"
#include "tests/system/PluginSession.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoMFBool.h>
#include <Inventor/fields/SoMFEngine.h>
#include <Inventor/fields/SoMFEnum.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoMFPath.h>
#include <Inventor/fields/SoMFRotation.h>

#include <QAbstractButton>
#include <QTableWidget>

#include <memory>

namespace {

/** Copies of a node's fields, to compare with to the last bit: objects by their address. */
std::vector<std::unique_ptr<SoMField>> copiesOf(const QVector<SoMField*>& fields)
{
    std::vector<std::unique_ptr<SoMField>> copies;
    for (SoMField* field : fields) {
        copies.emplace_back(static_cast<SoMField*>(field->getTypeId().createInstance()));
        copies.back()->copyFrom(*field);
    }
    return copies;
}

/** A text for the first cell of a row that is another one than what the field holds mostly. */
QString otherText(const SoMField& field, const QString& shown)
{
    if (field.isOfType(SoMFNode::getClassTypeId()))
        return QStringLiteral("Cube { }");
    if (field.isOfType(SoMFBool::getClassTypeId()))
        return shown == QLatin1String("TRUE") ? QStringLiteral("FALSE") : QStringLiteral("TRUE");
    if (field.isOfType(SoMFEnum::getClassTypeId())) {
        const auto& names = static_cast<const SoMFEnum&>(field);
        SbName name;
        for (int i = 0; i < names.getNumEnums(); ++i) {
            names.getEnum(i, name);
            if (shown != QLatin1String(name.getString()))
                break;
        }
        return QLatin1String(name.getString());
    }
    // Texts that hold several numbers get as many.
    QStringList numbers = shown.split(QLatin1Char(' '));
    for (QString& number : numbers)
        number = number == QLatin1String("2") ? QStringLiteral("1") : QStringLiteral("2");
    return numbers.join(QLatin1Char(' '));
}

/** Whole paths and engines are left out: their texts are long, and the other tests have them. */
bool canBeTyped(const SoMField& field)
{
    return !field.isOfType(SoMFPath::getClassTypeId()) &&
           !field.isOfType(SoMFEngine::getClassTypeId());
}

void typeIntoFocus(const QString& text)
{
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(line);
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
}

/** The editor that is shown, with a user before it. */
struct ShownEditor
{
    explicit ShownEditor(const PluginSession& session)
        : editor(session.editor()),
          table(editor->findChild<QTableWidget*>(QStringLiteral("m_table")))
    {}

    void click(const char* button) const
    {
        editor->findChild<QAbstractButton*>(QLatin1String(button))->click();
    }

    /** Types another value into the first row: into its first cell, or the first line of the
     *  pop-up. */
    void editFirstRow(const SoMField& field) const
    {
        // After a pop-up no window manager does it.
        QApplication::setActiveWindow(editor->window());
        table->setFocus();
        table->setCurrentCell(0, 0);
        if (auto* const popup = editor->findChild<QWidget*>(QStringLiteral("m_popupFrame"))) {
            click("m_editButton");
            auto* const line = popup->findChild<QLineEdit*>();
            line->setFocus();
            typeIntoFocus(otherText(field, line->text()));
            popup->hide();
            return;
        }
        QTest::keyClick(table, Qt::Key_F2);
        typeIntoFocus(otherText(field, table->item(0, 0)->text()));
    }

    /** Looks into every cell, as far as there are not too many. */
    void visitCells() const
    {
        table->setFocus();
        for (int row = 0; row < std::min(table->rowCount(), 5); ++row) {
            for (int column = 0; column < table->columnCount(); ++column) {
                table->setCurrentCell(row, column);
                QTest::keyClick(table, Qt::Key_F2);
            }
        }
    }

    QWidget* editor;
    QTableWidget* table;
};

void keepQuiet(const SoError*, void*) {}

} // namespace

/** Every multiple-value field of every node that there is, in the program's own editors: none is
 *  left out. */
class tst_EveryMultipleFieldOfEveryNode : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PluginSession> m_session;
    int m_changed = 0; ///< fields that an edit has given another value

    static void addNodeTypes() { addTypeRows(nodeTypesWith<SoMField>()); }

    /** Adds a row, edits one, deletes one; answers whether the edit gave another value. */
    static bool use(PluginSession& session, SoMField& field)
    {
        const ShownEditor shown(session);
        shown.click("m_addButton");
        session.run();
        const QList<QByteArray> before = rowTextsOf(field);
        if (canBeTyped(field))
            shown.editFirstRow(field);
        session.run();
        const bool isChanged = rowTextsOf(field) != before;
        shown.table->setCurrentCell(field.getNum() - 1, 0);
        shown.click("m_deleteButton");
        shown.click("m_ignoreButton");
        session.leaveEditor();
        session.run();
        return isChanged;
    }

private slots:
    void initTestCase()
    {
        // Rows that no text fits, and files that are none, are told about; not the matter here.
        SoReadError::setHandlerCallback(keepQuiet, nullptr);
        SoDebugError::setHandlerCallback(keepQuiet, nullptr);
        m_session = std::make_unique<PluginSession>();
    }
    void cleanupTestCase() { m_session.reset(); }

    void thereAreNodesOfManyTypes() { QVERIFY(nodeTypesWith<SoMField>().size() > 80); }

    void lookingAtAFieldChangesNothing_data() { addNodeTypes(); }
    void lookingAtAFieldChangesNothing()
    {
        auto* const node = newOfRowType<SoNode>();
        node->ref();
        m_session->selectNode(node);
        const QVector<SoMField*> fields = fieldsOf<SoMField>(*node);
        const auto copies = copiesOf(fields);
        for (SoMField* field : fields) {
            const QByteArray name = nameOf(*node, *field);
            const bool wasDefault = field->isDefault();
            m_session->selectField(field);
            QVERIFY2(m_session->editor(), name.constData());
            const ShownEditor shown(*m_session);
            QVERIFY2(shown.table, name.constData());
            QCOMPARE(shown.table->rowCount(), field->getNum());
            shown.visitCells();
            m_session->leaveEditor();
            m_session->selectField(nullptr);
            QVERIFY(!m_session->editor());
            for (std::size_t i = 0; i < copies.size(); ++i)
                QVERIFY2(copies[i]->isSame(*fields[static_cast<int>(i)]), name.constData());
            QCOMPARE(bool(field->isDefault()), wasDefault);
        }
        QCOMPARE(m_session->history().count(), 0);
        m_session->selectNode(nullptr);
        node->unref();
    }

    void everyFieldCanBeEditedUndoneAndRedone_data() { addNodeTypes(); }
    void everyFieldCanBeEditedUndoneAndRedone()
    {
        auto* const node = newOfRowType<SoNode>();
        node->ref();
        m_session->selectNode(node);
        for (SoMField* field : fieldsOf<SoMField>(*node)) {
            const QByteArray name = nameOf(*node, *field);
            const int rows = field->getNum();
            m_session->selectField(field);
            QVERIFY2(m_session->editor(), name.constData());
            const bool isChanged = use(*m_session, *field);
            QVERIFY2(isChanged || !canBeTyped(*field), name.constData());
            m_changed += isChanged;
            QVERIFY2(field->getNum() == rows, name.constData());
            const QList<QByteArray> used = rowTextsOf(*field);
            // A row added, a row deleted, the ignore flag, and for most types the edit.
            QVERIFY2(m_session->history().count() >= 3, name.constData());
            m_session->undoAll();
            QVERIFY2(field->getNum() == rows && !field->isIgnored(), name.constData());
            m_session->redoAll();
            QVERIFY2(field->getNum() == rows && field->isIgnored(), name.constData());
            // A rotation comes back from its text a little other than it went.
            if (!field->isOfType(SoMFRotation::getClassTypeId()))
                QCOMPARE(rowTextsOf(*field), used);
            m_session->selectField(nullptr);
            m_session->history().clear();
        }
        m_session->selectNode(nullptr);
        node->unref();
    }

    void theEditsWereRealOnes() { QVERIFY2(m_changed > 150, QByteArray::number(m_changed)); }
};

TAVRIK_TEST_MAIN(tst_EveryMultipleFieldOfEveryNode)
#include "tst_EveryMultipleFieldOfEveryNode.moc"
