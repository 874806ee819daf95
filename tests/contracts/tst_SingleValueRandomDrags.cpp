#include "tests/contracts/SingleValueEditors.h"
#include "tests/support/EditorRig.h"
#include "tests/support/FieldBits.h"
#include "tests/support/RandomValues.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/DvSlider.h"

#include <QSlider>

namespace {

const int s_values = 10000;

/** What texts do not carry to the last bit: which of the many values that are no numbers it is. */
const QSet<QString> s_notCarried = {QStringLiteral("nan"), QStringLiteral("-nan")};

bool hasSlider(const SingleValueEditor& editor)
{
    return !editor.make()->getWidget()->findChildren<DvSlider*>().isEmpty();
}

bool isReal(const SoField& field)
{
    return field.isOfType(SoSFFloat::getClassTypeId()) ||
           field.isOfType(SoSFDouble::getClassTypeId());
}

int anyPosition(const QSlider& slider, QRandomGenerator& random)
{
    const quint64 positions = quint64(qint64(slider.maximum()) - slider.minimum()) + 1;
    return int(slider.minimum() + qint64(random.generate64() % positions));
}

void undoAll(const RecordingServices& services)
{
    for (int i = services.count(); i-- > 0;)
        services.undo(i);
}

} // namespace

/** Dragging from any value, and undoing the drag. */
class tst_SingleValueRandomDrags : public QObject
{
    Q_OBJECT

private:
    static void addSliderEditors()
    {
        QTest::addColumn<int>("index");
        int index = -1;
        for (const SingleValueEditor& editor : singleValueEditors()) {
            ++index;
            if (hasSlider(editor))
                QTest::newRow(editor.name) << index;
        }
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void sixEditorsHaveASlider()
    {
        int count = 0;
        for (const SingleValueEditor& editor : singleValueEditors())
            count += hasSlider(editor);
        QCOMPARE(count, 6);
    }

    void undoingADragRestoresTheValueToTheLastBit_data() { addSliderEditors(); }
    void undoingADragRestoresTheValueToTheLastBit()
    {
        QFETCH(int, index);
        const SingleValueEditor described = singleValueEditors().at(index);
        const auto editor = described.make();
        EditorRig rig(*editor, described.field);
        auto& slider = *editor->getWidget()->findChild<QSlider*>();
        QRandomGenerator random(2);
        QSet<QString> notCarried;
        for (int i = 0; i < s_values; ++i) {
            setRandomValue(*rig.field, random);
            const QByteArray before = bitsOf(*rig.field);
            const QString text = rig.text();
            rig.edit();
            slider.setSliderDown(true);
            for (int step = random.bounded(3); step > 0; --step)
                slider.setValue(anyPosition(slider, random));
            slider.setSliderDown(false);
            QVERIFY(rig.host.services.count() > 0);
            undoAll(rig.host.services);
            if (bitsOf(*rig.field) != before)
                notCarried << text;
            rig.host.services.commands.clear();
        }
        QVERIFY2(s_notCarried.contains(notCarried),
                 qPrintable(QStringList(notCarried.values()).join(QLatin1Char(' '))));
        QVERIFY(!isReal(*rig.field) || !notCarried.isEmpty());
    }
};

TAVRIK_TEST_MAIN(tst_SingleValueRandomDrags)
#include "tst_SingleValueRandomDrags.moc"
