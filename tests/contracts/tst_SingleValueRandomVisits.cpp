#include "tests/contracts/SingleValueEditors.h"
#include "tests/support/EditorRig.h"
#include "tests/support/FieldBits.h"
#include "tests/support/RandomValues.h"
#include "tests/support/TestMain.h"

#include <QPushButton>

namespace {

const int s_values = 10000;

/** The keyboard goes through all of the editor's controls, and on to another widget. */
void tabThrough(const EditorRig& rig)
{
    for (auto* control : rig.editor.getWidget()->findChildren<QWidget*>()) {
        if ((control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && control->isVisible())
            control->setFocus(Qt::TabFocusReason);
    }
    rig.other->setFocus(Qt::TabFocusReason);
}

/** Opens the pop-up of an editor that has one, and closes it. */
void lookIntoPopup(const EditorRig& rig)
{
    auto* const button = rig.find<QPushButton>("m_editButton");
    if (!button)
        return;
    button->click();
    tabThrough(rig);
    button->click();
}

} // namespace

/** Whoever only looks at a value, of whatever kind, leaves it as it was, to the last bit. */
class tst_SingleValueRandomVisits : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void lookingAtAValueChangesNoBitOfIt_data()
    {
        QTest::addColumn<int>("index");
        int index = 0;
        for (const SingleValueEditor& editor : singleValueEditors())
            QTest::addRow("%s on %s", editor.name, editor.field) << index++;
    }
    void lookingAtAValueChangesNoBitOfIt()
    {
        QFETCH(int, index);
        const SingleValueEditor described = singleValueEditors().at(index);
        const auto editor = described.make();
        EditorRig rig(*editor, described.field);
        QRandomGenerator random(1);
        for (int i = 0; i < s_values; ++i) {
            editor->deactivate();
            setRandomValue(*rig.field, random);
            const QByteArray before = bitsOf(*rig.field);
            rig.edit();
            tabThrough(rig);
            // The boxes of former masks.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (i % 500 == 0) {
                lookIntoPopup(rig);
                QCoreApplication::processEvents();
                EditorRig::runSensors();
            }
            QVERIFY2(bitsOf(*rig.field) == before, qPrintable(rig.text()));
        }
        editor->deactivate();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void lookingAtALongTextChangesNoneOfItsCharacters()
    {
        for (const SingleValueEditor& described : singleValueEditors()) {
            const auto editor = described.make();
            EditorRig rig(*editor, described.field);
            if (!rig.field->isOfType(SoSFString::getClassTypeId()))
                continue;
            auto& string = static_cast<SoSFString&>(*rig.field);
            QRandomGenerator random(7);
            const QByteArray text = randomText(random, 100000);
            string.setValue(text.constData());
            rig.edit();
            tabThrough(rig);
            EditorRig::runSensors();
            tabThrough(rig);
            editor->deactivate();
            QVERIFY2(text == string.getValue().getString(), described.name);
            QCOMPARE(rig.host.services.count(), 0);
        }
    }
};

TAVRIK_TEST_MAIN(tst_SingleValueRandomVisits)
#include "tst_SingleValueRandomVisits.moc"
