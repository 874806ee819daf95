#include "tests/support/FieldBits.h"
#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"
#include "tests/system/PluginSession.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSField.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

namespace {

/** All of a node's values, to the last bit. */
QByteArray bitsOfAll(const SoNode& node)
{
    QByteArray bits;
    for (SoSField* field : fieldsOf<SoSField>(node))
        bits += bitsOf(*field) + '|';
    return bits;
}

void tabThrough(QWidget& editor)
{
    for (auto* control : editor.findChildren<QWidget*>()) {
        if ((control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
            control->setFocus(Qt::TabFocusReason);
    }
}

/** As many numbers as the text has, all others than they were, or another node. */
QString otherText(const QString& text, const SoField& field)
{
    if (field.isOfType(SoSFNode::getClassTypeId()))
        return QStringLiteral("Cube { }");
    QStringList numbers = text.simplified().split(QLatin1Char(' '));
    for (QString& number : numbers)
        number = number == QLatin1String("2") ? QStringLiteral("1") : QStringLiteral("2");
    return numbers.join(QLatin1Char(' '));
}

void typeInto(QLineEdit& line, const SoField& field)
{
    const QString typed = otherText(line.text(), field);
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, typed);
    QTest::keyClick(&line, Qt::Key_Return);
}

/** Uses each of the editor's controls, as a user does. */
void useControls(PluginSession& session, QWidget& editor, const SoField& field)
{
    for (auto* line : editor.findChildren<QLineEdit*>()) {
        if (line->isVisible())
            typeInto(*line, field);
    }
    session.run();
    for (auto* box : editor.findChildren<QCheckBox*>())
        box->click();
    for (auto* slider : editor.findChildren<QSlider*>()) {
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_Right);
        QTest::mouseClick(slider, Qt::LeftButton);
    }
    for (auto* box : editor.findChildren<QComboBox*>()) {
        box->setFocus();
        QTest::keyClick(box, box->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
    }
    for (auto* box : editor.findChildren<QSpinBox*>())
        box->stepUp();
    session.run();
}

void pressButtons(PluginSession& session, const QWidget& editor)
{
    editor.findChild<QPushButton*>(QStringLiteral("m_ignoreButton"))->click();
    editor.findChild<QPushButton*>(QStringLiteral("m_defaultButton"))->click();
    session.leaveEditor();
    session.run();
}

void keepQuiet(const SoError*, void*) {}

} // namespace

/** Every single-value field of every node that there is, in the program's own editors: none is
 *  left out. */
class tst_EveryFieldOfEveryNode : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PluginSession> m_session;
    int m_changed = 0; ///< fields that an edit has given another value

    static void addNodeTypes() { addTypeRows(creatableTypes(SoNode::getClassTypeId())); }

private slots:
    void initTestCase()
    {
        // A text that is no file's name, or no value, is told about; that is not the matter here.
        SoReadError::setHandlerCallback(keepQuiet, nullptr);
        SoDebugError::setHandlerCallback(keepQuiet, nullptr);
        // The clock stands still: some nodes move by themselves.
        SoDB::enableRealTimeSensor(FALSE);
        m_session = std::make_unique<PluginSession>();
    }
    void cleanupTestCase() { m_session.reset(); }

    void thereAreNodesOfManyTypes()
    {
        QVERIFY(creatableTypes(SoNode::getClassTypeId()).size() > 200);
    }

    void lookingAtAFieldChangesNothing_data() { addNodeTypes(); }
    void lookingAtAFieldChangesNothing()
    {
        auto* const node = newOfRowType<SoNode>();
        node->ref();
        m_session->selectNode(node);
        const QByteArray before = bitsOfAll(*node);
        for (SoSField* field : fieldsOf<SoSField>(*node)) {
            const bool wasDefault = field->isDefault();
            m_session->selectField(field);
            QVERIFY2(m_session->editor(), nameOf(*node, *field).constData());
            tabThrough(*m_session->editor());
            m_session->leaveEditor();
            m_session->selectField(nullptr);
            QVERIFY(!m_session->editor());
            QVERIFY2(bitsOfAll(*node) == before, nameOf(*node, *field).constData());
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
        for (SoSField* field : fieldsOf<SoSField>(*node)) {
            const QByteArray name = nameOf(*node, *field);
            m_session->selectField(field);
            QVERIFY2(m_session->editor(), name.constData());
            const QByteArray before = bitsOf(*field);
            useControls(*m_session, *m_session->editor(), *field);
            m_changed += bitsOf(*field) != before;
            pressButtons(*m_session, *m_session->editor());
            // At the least its ignore flag.
            QVERIFY2(m_session->history().count() > 0, name.constData());
            m_session->undoAll();
            m_session->redoAll();
            m_session->selectField(nullptr);
            m_session->history().clear();
        }
        m_session->selectNode(nullptr);
        node->unref();
    }

    void theEditsWereRealOnes() { QVERIFY2(m_changed > 800, QByteArray::number(m_changed)); }
};

TAVRIK_TEST_MAIN(tst_EveryFieldOfEveryNode)
#include "tst_EveryFieldOfEveryNode.moc"
