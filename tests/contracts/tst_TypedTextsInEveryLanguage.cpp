#include "tests/contracts/SingleValueEditors.h"
#include "tests/contracts/TypedTexts.h"
#include "tests/support/EditorRig.h"
#include "tests/support/FieldBits.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSlider>
#include <QSpinBox>

namespace {

const char* const s_texts[] = {"1",     "-1",  "2.5",  "1,5", "1.234", "1,234",     "1e3",
                               "1e-7",  ".25", "0x1F", "017", "1 2 3", "1 000",     "TRUE",
                               "i I",   "ıİ",  "٣",    "४",   "١٫٥",   "1.234,5",   "99999999999",
                               "\"q\"", "nan", "−2",   "",    "1.5.6", "3.14159265"};

/** What a field holds after each of the texts, and after each click. */
class Record
{
public:
    explicit Record(const SingleValueEditor& described)
        : m_editor(described.make()), m_rig(*m_editor, described.field)
    {
        QString atFirst = m_rig.text();
        for (QLineEdit* line : typedLines(*m_editor)) {
            for (const char* text : s_texts)
                type(*line, QString::fromUtf8(text), atFirst);
        }
        chooseAndClick();
    }

    QByteArrayList values() const { return m_values; }

private:
    void note(const QString& what)
    {
        EditorRig::runSensors();
        m_values << what.toUtf8() + " gave " + m_rig.text().toUtf8() + " (" +
                        bitsOf(*m_rig.field).toHex() + ")";
    }
    void type(QLineEdit& line, const QString& text, const QString& atFirst)
    {
        m_rig.field->set(atFirst.toUtf8().constData());
        EditorRig::runSensors();
        line.setFocus();
        line.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&line, Qt::Key_Delete);
        for (const QChar character : text)
            press(line, character);
        QTest::keyClick(&line, Qt::Key_Return);
        m_rig.other->setFocus();
        note(text + QLatin1String(" in ") + line.objectName());
    }
    /** QTest's own keys are Latin-1 only. */
    static void press(QLineEdit& line, QChar character)
    {
        QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, character);
        QCoreApplication::sendEvent(&line, &event);
    }
    void chooseAndClick()
    {
        QWidget& widget = *m_editor->getWidget();
        for (auto* box : widget.findChildren<QCheckBox*>()) {
            box->click();
            note(QStringLiteral("clicking ") + box->objectName());
        }
        for (auto* box : widget.findChildren<QComboBox*>()) {
            box->setFocus();
            QTest::keyClick(box, Qt::Key_Down);
            note(QStringLiteral("choosing"));
        }
        for (auto* slider : widget.findChildren<QSlider*>()) {
            slider->setFocus();
            QTest::keyClick(slider, Qt::Key_Right);
            note(QStringLiteral("sliding"));
        }
        for (auto* box : widget.findChildren<QSpinBox*>()) {
            box->stepUp();
            note(QStringLiteral("spinning"));
        }
    }

    std::unique_ptr<DvSFieldWidget> m_editor;
    EditorRig m_rig;
    QByteArrayList m_values;
};

} // namespace

/** The user's language never changes what a typed text means. */
class tst_TypedTextsInEveryLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void theSameTextsGiveTheSameValues_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const SingleValueEditor& editor : singleValueEditors())
            QTest::addRow("%s on %s", editor.name, editor.field) << index++;
    }
    void theSameTextsGiveTheSameValues()
    {
        QFETCH(int, index);
        const SingleValueEditor described = singleValueEditors().at(index);
        const QByteArrayList expected = Record(described).values();
        // An image is only shown.
        QCOMPARE(expected.isEmpty(), QByteArray(described.name) == "DvSFImageWidget");
        for (const QByteArray& name : UserLanguage::tested()) {
            const UserLanguage language(name);
            if (!language.isInstalled())
                qInfo("The C library lacks %s; Qt alone speaks it.", name.constData());
            const QByteArrayList values = Record(described).values();
            QCOMPARE(values.size(), expected.size());
            for (int i = 0; i < values.size(); ++i)
                QCOMPARE(name + ": " + values[i], name + ": " + expected[i]);
        }
    }
};

TAVRIK_TEST_MAIN(tst_TypedTextsInEveryLanguage)
#include "tst_TypedTextsInEveryLanguage.moc"
