#include "tests/contracts/SingleValueEditors.h"
#include "tests/contracts/TypedTexts.h"
#include "tests/support/EditorRig.h"
#include "tests/support/FieldBits.h"
#include "tests/support/RandomValues.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"
#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"
#include "FieldEditors/SFWidgets/DvSFStringWidget.h"

#include <Inventor/errors/SoReadError.h>

#include <QCheckBox>
#include <QComboBox>

namespace {

const int s_values = 10000;
// Every so many values a line is typed into key by key, or entered and left again.
const int s_typedByKeys = 25;
const int s_entered = 5;

/** QTest's own keys are Latin-1 only. */
void press(QLineEdit& line, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&line, &press);
}

/** As if the user had typed the whole text; key by key would take too long for all values. */
void replaceText(QLineEdit& line, const QString& text, bool byKeys)
{
    if (byKeys) {
        line.selectAll();
        for (const QChar character : text)
            press(line, 0, character);
    } else {
        line.setText(text);
        line.setModified(true);
    }
}

bool canBeTyped(const QString& text)
{
    return !text.isEmpty() && text.size() < 60 &&
           std::all_of(text.begin(), text.end(), [](QChar character) {
               return character.isPrint() && !character.isSurrogate();
           });
}

void keepQuiet(const SoError*, void*) {}

/** The mask that a click on a box gives. */
int maskAfterClick(int mask, int bits, bool on)
{
    return on ? mask | bits : mask & ~bits;
}

} // namespace

/** Typing, or choosing, what is shown gives the field what the text says, by the editor's rule. */
class tst_SingleValueRandomTyping : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SoEveryField::initClass();
        // Coin's reader tells about numbers beyond its own limits.
        SoReadError::setHandlerCallback(keepQuiet, nullptr);
    }

    void typingTheShownTextGivesWhatItSays_data()
    {
        QTest::addColumn<int>("index");
        int index = -1;
        for (const SingleValueEditor& editor : singleValueEditors()) {
            ++index;
            const auto made = editor.make();
            made->createWidgets();
            if (!typedLines(*made).isEmpty())
                QTest::addRow("%s on %s", editor.name, editor.field) << index;
        }
    }
    void typingTheShownTextGivesWhatItSays()
    {
        QFETCH(int, index);
        const SingleValueEditor described = singleValueEditors().at(index);
        const auto editor = described.make();
        EditorRig rig(*editor, described.field);
        const QList<QLineEdit*> lines = typedLines(*editor);
        QRandomGenerator random(3);
        int typedByKeys = 0;
        for (int i = 0; i < s_values; ++i) {
            setRandomValue(*rig.field, random);
            editor->refresh();
            const int number = random.bounded(lines.size());
            QLineEdit& line = *lines[number];
            const QString text = line.text();
            const QByteArray expected = bitsAfterTyping(*rig.field, number, text);
            const bool byKeys = i % s_typedByKeys == 0 && canBeTyped(text);
            typedByKeys += byKeys;
            const bool isEntered = byKeys || i % s_entered == 0;
            if (isEntered)
                line.setFocus();
            replaceText(line, text, byKeys);
            press(line, Qt::Key_Return, QStringLiteral("\r"));
            if (isEntered)
                rig.other->setFocus();
            EditorRig::runSensors();
            if (bitsOf(*rig.field) != expected)
                QFAIL(qPrintable(QStringLiteral("\"%1\" in line %2 gave \"%3\"")
                                     .arg(text, QString::number(number), rig.text())));
            rig.host.services.commands.clear();
        }
        QVERIFY(typedByKeys > 100);
    }

    void pastingALongTextLosesNothingOfIt()
    {
        const auto editor = std::make_unique<DvSFStringWidget>();
        EditorRig rig(*editor, "sfString");
        QRandomGenerator random(8);
        const QString text = DvFieldText::toQString(randomText(random, 40000).constData());
        QLineEdit& line = *typedLines(*editor).first();
        replaceText(line, text, false);
        press(line, Qt::Key_Return, QStringLiteral("\r"));
        QVERIFY(text.toUtf8() == rig.node->sfString.getValue().getString());
    }

    void choosingANameGivesItsValueWhateverWasThereBefore()
    {
        const auto editor = std::make_unique<DvSFEnumWidget>();
        EditorRig rig(*editor, "sfEnum");
        auto& box = *rig.find<QComboBox>("comboBox");
        QRandomGenerator random(4);
        for (int i = 0; i < s_values; ++i) {
            setRandomValue(*rig.field, random);
            editor->refresh();
            const int item = random.bounded(box.count());
            box.setCurrentIndex(item);
            QMetaObject::invokeMethod(&box, "activated", Q_ARG(int, item));
            SbName name;
            QCOMPARE(rig.node->sfEnum.getValue(), rig.node->sfEnum.getEnum(item, name));
        }
        QCOMPARE(rig.host.services.count(), s_values);
    }

    void clickingTheBoxTurnsTheValueRound()
    {
        const auto editor = std::make_unique<DvSFBoolWidget>();
        EditorRig rig(*editor, "sfBool");
        auto& box = *rig.find<QCheckBox>("m_box");
        QRandomGenerator random(5);
        for (int i = 0; i < s_values; ++i) {
            setRandomValue(*rig.field, random);
            editor->refresh();
            const bool before = rig.node->sfBool.getValue();
            box.click();
            QCOMPARE(bool(rig.node->sfBool.getValue()), !before);
        }
    }

    void clickingABoxOfAMaskChangesItsBitsAlone()
    {
        const auto editor = std::make_unique<DvSFBitMaskWidget>();
        EditorRig rig(*editor, "sfBitMask");
        auto& mask = rig.node->sfBitMask;
        const auto boxes = editor->getWidget()->findChildren<QCheckBox*>();
        QCOMPARE(boxes.size(), mask.getNumEnums());
        QRandomGenerator random(6);
        for (int i = 0; i < s_values; ++i) {
            setRandomValue(*rig.field, random);
            editor->refresh();
            const int before = mask.getValue();
            const int clicked = random.bounded(boxes.size());
            SbName name;
            const int bits = mask.getEnum(clicked, name);
            const bool on = (before & bits) != bits;
            boxes[clicked]->click();
            QCOMPARE(mask.getValue(), maskAfterClick(before, bits, on));
        }
    }
};

TAVRIK_TEST_MAIN(tst_SingleValueRandomTyping)
#include "tst_SingleValueRandomTyping.moc"
