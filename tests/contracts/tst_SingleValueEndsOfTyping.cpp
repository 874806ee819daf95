#include "tests/contracts/EditorRows.h"
#include "tests/support/EditorRig.h"
#include "tests/support/FieldBits.h"
#include "tests/support/TestMain.h"

#include <QPushButton>

namespace {

/** What came of a text that was typed. */
struct Outcome
{
    QByteArray bits;
    int commands;
};

bool operator==(const Outcome& one, const Outcome& other)
{
    return one.bits == other.bits && one.commands == other.commands;
}

/** How typing comes to its end. */
using End = void (*)(EditorRig&);

void leaveByMouse(EditorRig& rig)
{
    rig.leave();
}

/** Nobody else in the window takes the focus. */
void deactivateInFocus(EditorRig& rig)
{
    rig.other->setEnabled(false);
    rig.editor.deactivate();
}

void releaseInFocus(EditorRig& rig)
{
    rig.editor.releaseWidgets();
}

} // namespace

/** A typed text has one meaning, however the line is left: one row an editor and text. */
class tst_SingleValueEndsOfTyping : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }
    void everyEndComesToTheSame_data();
    void everyEndComesToTheSame();
    void theNextFieldIsShownAndKeepsItsValue_data() { addTypings(); }
    void theNextFieldIsShownAndKeepsItsValue();
    void aHalfTypedNumberInAnOpenPopupIsReverted();

private:
    static void addTypings();
    static const EditorRow& fetchRow();
    static const std::vector<EditorRow>& rows();
    static QList<QLineEdit*> linesIn(const EditorRig& rig);
    /** Types into one of the editor's lines, comes to the end, and answers what came of it. */
    static Outcome outcomeOf(const EditorRow& row, int line, const QString& text, End end);
};

const std::vector<EditorRow>& tst_SingleValueEndsOfTyping::rows()
{
    static const std::vector<EditorRow> s_rows = [] {
        std::vector<EditorRow> all = numberEditorRows();
        const std::vector<EditorRow> texts = textEditorRows();
        all.insert(all.end(), texts.begin(), texts.end());
        return all;
    }();
    return s_rows;
}

const EditorRow& tst_SingleValueEndsOfTyping::fetchRow()
{
    QFETCH(int, row);
    return rows()[static_cast<std::size_t>(row)];
}

QList<QLineEdit*> tst_SingleValueEndsOfTyping::linesIn(const EditorRig& rig)
{
    QList<QLineEdit*> lines;
    for (QLineEdit* line : rig.editor.getWidget()->findChildren<QLineEdit*>())
        if (line->isVisible() && !line->isReadOnly())
            lines << line;
    return lines;
}

void tst_SingleValueEndsOfTyping::addTypings()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    for (std::size_t i = 0; i < rows().size(); ++i) {
        for (const char* text : {"-", "7", ""}) {
            const QByteArray name = QByteArray(rows()[i].name) + " \"" + text + '"';
            QTest::newRow(name.constData()) << static_cast<int>(i) << QString::fromLatin1(text);
        }
    }
}

Outcome tst_SingleValueEndsOfTyping::outcomeOf(const EditorRow& row, int line, const QString& text,
                                               End end)
{
    const auto editor = row.make();
    EditorRig rig(*editor, row.field);
    EditorRig::type(linesIn(rig).value(line), text);
    end(rig);
    EditorRig::runSensors();
    return {bitsOf(*rig.field), rig.host.services.count()};
}

void tst_SingleValueEndsOfTyping::everyEndComesToTheSame_data()
{
    addTypings();
}

void tst_SingleValueEndsOfTyping::everyEndComesToTheSame()
{
    const EditorRow& row = fetchRow();
    QFETCH(QString, text);
    int lines = 0;
    {
        const auto editor = row.make();
        const EditorRig rig(*editor, row.field);
        lines = linesIn(rig).size();
    }
    for (int line = 0; line < lines; ++line) {
        const Outcome left = outcomeOf(row, line, text, &leaveByMouse);
        QVERIFY(outcomeOf(row, line, text, &deactivateInFocus) == left);
        QVERIFY(outcomeOf(row, line, text, &releaseInFocus) == left);
    }
}

void tst_SingleValueEndsOfTyping::theNextFieldIsShownAndKeepsItsValue()
{
    const EditorRow& row = fetchRow();
    QFETCH(QString, text);
    const auto editor = row.make();
    EditorRig rig(*editor, row.field);
    const QList<QLineEdit*> lines = linesIn(rig);
    if (lines.isEmpty())
        return; // nothing to be typed into
    EditorRig::type(lines.first(), text);
    auto* const next = new SoEveryField;
    next->ref();
    rig.edit(*next->getField(row.field));
    const QByteArray bits = bitsOf(*rig.field);
    const int count = rig.host.services.count();
    QVERIFY(!editor->hasPendingEdit());
    QCOMPARE(row.shown(rig), QString(row.shownAtFirst));
    rig.leave();
    EditorRig::runSensors();
    editor->deactivate();
    QCOMPARE(bitsOf(*rig.field), bits);
    QCOMPARE(rig.host.services.count(), count);
    next->unref();
}

void tst_SingleValueEndsOfTyping::aHalfTypedNumberInAnOpenPopupIsReverted()
{
    int popups = 0;
    for (const EditorRow& row : rows()) {
        const auto editor = row.make();
        EditorRig rig(*editor, row.field);
        auto* const editButton = rig.find<QPushButton>("m_editButton");
        if (!editButton)
            continue;
        ++popups;
        const QByteArray bits = bitsOf(*rig.field);
        editButton->click();
        EditorRig::type(rig.find<QLineEdit>("m_popupLine"), QStringLiteral("-"));
        deactivateInFocus(rig);
        QCOMPARE(bitsOf(*rig.field), bits);
        QCOMPARE(rig.host.services.count(), 0);
    }
    QCOMPARE(popups, 2);
}

TAVRIK_TEST_MAIN(tst_SingleValueEndsOfTyping)
#include "tst_SingleValueEndsOfTyping.moc"
