#include "tests/support/EditorRig.h"
#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCylinder.h>

#include <QCheckBox>

#include <set>

class tst_DvSFBitMaskWidget : public QObject
{
    Q_OBJECT

private:
    static QList<QCheckBox*> boxes(const EditorRig& rig)
    {
        // Boxes of a field that was edited before go in the next turn of the event loop.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        return rig.editor.getWidget()->findChildren<QCheckBox*>();
    }

    /** The labels of the boxes, in brackets where they are ticked. */
    static QString shown(const EditorRig& rig)
    {
        QStringList texts;
        for (const QCheckBox* box : boxes(rig))
            texts << (box->isChecked() ? QLatin1Char('[') + box->text() + QLatin1Char(']')
                                       : box->text());
        return texts.join(QLatin1Char(' '));
    }

    /** On the box itself: the place to the right of its label is not for clicking. */
    static void click(QCheckBox* box)
    {
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    }

    static void click(const EditorRig& rig, const char* name)
    {
        boxes(rig);
        click(rig.find<QCheckBox>(name));
    }

    static int value(const EditorRig& rig)
    {
        return static_cast<SoSFBitMask*>(rig.field)->getValue();
    }

    /** Gives the test node's mask other names. */
    static void setNames(const EditorRig& rig, const std::vector<std::pair<const char*, int>>& bits)
    {
        std::vector<int> values;
        std::vector<SbName> names;
        for (const auto& [name, bit] : bits) {
            names.emplace_back(name);
            values.push_back(bit);
        }
        rig.node->sfBitMask.setEnums(static_cast<int>(bits.size()), values.data(), names.data());
    }

    static void show(EditorRig& rig, int mask)
    {
        static_cast<SoSFBitMask*>(rig.field)->setValue(mask);
        EditorRig::runSensors();
    }

    /** What can be reached from a value by one click each. */
    static std::set<int> reachedFrom(EditorRig& rig, int mask)
    {
        std::set<int> reached;
        for (int i = 0; i < boxes(rig).size(); ++i) {
            show(rig, mask);
            click(boxes(rig).at(i));
            reached.insert(value(rig));
            EditorRig::runSensors();
        }
        return reached;
    }

    /** Node types whose "parts" are a bit mask, and that with all bits. */
    static void addParts()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<int>("all");
        QTest::newRow("cone") << QByteArray("Cone") << int(SoCone::ALL);
        QTest::newRow("cylinder") << QByteArray("Cylinder") << int(SoCylinder::ALL);
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void showsABoxForEachName()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, SoEveryField::SIDES | SoEveryField::TOP);
        QCOMPARE(shown(rig), QStringLiteral("[SIDES] [TOP] BOTTOM ALL"));
        show(rig, 0);
        QCOMPARE(shown(rig), QStringLiteral("SIDES TOP BOTTOM ALL"));
        show(rig, SoEveryField::ALL);
        QCOMPARE(shown(rig), QStringLiteral("[SIDES] [TOP] [BOTTOM] [ALL]"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theBoxesAreRebuiltForEachField()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        boxes(rig);
        auto* const cone = new SoCone;
        cone->ref();
        cone->parts = SoCone::BOTTOM;
        const QPointer<QCheckBox> old = rig.find<QCheckBox>("TOP");
        rig.edit(cone->parts);
        QVERIFY(!old || !old->isVisible());
        QCOMPARE(shown(rig), QStringLiteral("SIDES [BOTTOM] ALL"));
        QVERIFY(!old);
        click(rig, "SIDES");
        QCOMPARE(cone->parts.getValue(), int(SoCone::ALL));
        rig.edit(rig.node->sfBitMask);
        QVERIFY(shown(rig).contains(QStringLiteral("TOP")));
        cone->unref();
    }

    void anOldBoxIsDisconnectedFromTheEditor()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, 0);
        QCheckBox* const old = boxes(rig).first();
        auto* const cone = new SoCone;
        cone->ref();
        rig.edit(cone->parts);
        old->click();
        QCOMPARE(cone->parts.getValue(), int(SoCone::ALL));
        QCOMPARE(value(rig), int(SoCone::ALL));
        QCOMPARE(rig.node->sfBitMask.getValue(), 0);
        QCOMPARE(rig.host.services.count(), 0);
        cone->unref();
    }

    void aFieldWithoutNamesHasNoBoxes()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        SoSFBitMask nameless;
        nameless.setValue(5);
        rig.edit(nameless);
        QCOMPARE(shown(rig), QString());
        editor.applyChanges();
        QCOMPARE(nameless.getValue(), 5);
        rig.edit(rig.node->sfBitMask);
    }

    void aClickChangesTheFieldAndMakesOneCommand()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, SoEveryField::SIDES);
        click(rig, "BOTTOM");
        QCOMPARE(value(rig), SoEveryField::SIDES | SoEveryField::BOTTOM);
        QCOMPARE(rig.host.services.count(), 1);
        EditorRig::runSensors();
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.host.services.at(0).getField(), rig.field);
    }

    void theSpaceKeyTicksToo()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, 0);
        boxes(rig).at(1)->setFocus();
        QTest::keyClick(boxes(rig).at(1), Qt::Key_Space);
        QCOMPARE(value(rig), int(SoEveryField::TOP));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void keepsTheNewValueWhenUndone()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, 0);
        click(rig, "TOP");
        rig.host.services.undo(0);
        QCOMPARE(value(rig), int(SoEveryField::TOP));
        show(rig, 0);
        rig.host.services.redo(0);
        EditorRig::runSensors();
        QCOMPARE(shown(rig), QStringLiteral("SIDES [TOP] BOTTOM ALL"));
    }

    void tickingTheLastMemberTicksTheNameForAllOfThem()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, SoEveryField::SIDES | SoEveryField::TOP);
        click(rig, "BOTTOM");
        QCOMPARE(shown(rig), QStringLiteral("[SIDES] [TOP] [BOTTOM] [ALL]"));
    }

    void aNameForSeveralBitsTakesItsMembersAlong()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, SoEveryField::TOP);
        click(rig, "ALL");
        QCOMPARE(value(rig), int(SoEveryField::ALL));
        click(rig, "ALL");
        QCOMPARE(value(rig), 0);
        QCOMPARE(shown(rig), QStringLiteral("SIDES TOP BOTTOM ALL"));
        QCOMPARE(rig.host.services.count(), 2);
    }

    void untickingOneMemberLeavesTheOthers()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, SoEveryField::ALL);
        click(rig, "TOP");
        QCOMPARE(value(rig), SoEveryField::SIDES | SoEveryField::BOTTOM);
        QCOMPARE(shown(rig), QStringLiteral("[SIDES] TOP [BOTTOM] ALL"));
    }

    void everyValueIsReachedAndLeftByClicks_data() { addParts(); }
    void everyValueIsReachedAndLeftByClicks()
    {
        QFETCH(int, all);
        auto* const node = newOfRowType<SoNode>();
        node->ref();
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        rig.edit(*node->getField("parts"));
        std::set<int> reached;
        for (int mask = 0; mask <= all; ++mask) {
            const std::set<int> next = reachedFrom(rig, mask);
            QCOMPARE(static_cast<int>(next.count(mask)), 0); // every click changes something
            reached.insert(next.begin(), next.end());
        }
        QCOMPARE(static_cast<int>(reached.size()), all + 1);
        node->unref();
    }

    void aSingleBitsClickTurnsThatBitAlone_data() { addParts(); }
    void aSingleBitsClickTurnsThatBitAlone()
    {
        QFETCH(int, all);
        auto* const node = newOfRowType<SoNode>();
        node->ref();
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        rig.edit(*node->getField("parts"));
        for (int mask = 0; mask <= all; ++mask) {
            for (int bit = 0; (1 << bit) < all; ++bit) {
                show(rig, mask);
                click(boxes(rig).at(bit));
                QCOMPARE(value(rig), mask ^ (1 << bit));
            }
        }
        node->unref();
    }

    void bitsWithoutANameSurvive()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        show(rig, 0x40 | SoEveryField::SIDES);
        QCOMPARE(shown(rig), QStringLiteral("[SIDES] TOP BOTTOM ALL"));
        click(rig, "TOP");
        QCOMPARE(value(rig), 0x40 | SoEveryField::SIDES | SoEveryField::TOP);
        click(rig, "ALL");
        click(rig, "ALL");
        QCOMPARE(value(rig), 0x40);
    }

    void aBitThatOnlyANameForSeveralHoldsIsNotLostByAnothersClick()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        setNames(rig, {{"ONE", 1}, {"BOTH", 3}});
        rig.edit();
        show(rig, 2);
        QCOMPARE(shown(rig), QStringLiteral("ONE BOTH"));
        click(rig, "ONE");
        QCOMPARE(value(rig), 3);
        click(rig, "ONE");
        QCOMPARE(value(rig), 2);
    }

    void namesThatShareABitGoTogetherWhenItGoes()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        setNames(rig, {{"A", 1}, {"B", 2}, {"C", 4}, {"AB", 3}, {"BC", 6}});
        rig.edit();
        show(rig, 7);
        QCOMPARE(shown(rig), QStringLiteral("[A] [B] [C] [AB] [BC]"));
        click(rig, "AB");
        QCOMPARE(shown(rig), QStringLiteral("A B [C] AB BC"));
        click(rig, "BC");
        QCOMPARE(shown(rig), QStringLiteral("A [B] [C] AB [BC]"));
    }

    void aNameWithoutBitsStandsForNoneOfTheOthers()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        setNames(rig, {{"NONE", 0}, {"A", 1}, {"B", 2}});
        rig.edit();
        show(rig, 3);
        QCOMPARE(shown(rig), QStringLiteral("NONE [A] [B]"));
        click(rig, "NONE");
        QCOMPARE(value(rig), 0);
        QCOMPARE(shown(rig), QStringLiteral("[NONE] A B"));
        click(rig, "A");
        QCOMPARE(shown(rig), QStringLiteral("NONE [A] B"));
        click(rig, "A");
        QCOMPARE(shown(rig), QStringLiteral("[NONE] A B"));
        click(rig, "NONE"); // it cannot be left without choosing another
        QCOMPARE(shown(rig), QStringLiteral("[NONE] A B"));
        show(rig, 8 | 1);
        click(rig, "NONE");
        QCOMPARE(value(rig), 8); // the bit without a name survives here too
        QCOMPARE(shown(rig), QStringLiteral("[NONE] A B"));
    }

    void theHighestBitIsABitLikeAnyOther()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        const int highest = std::numeric_limits<int>::min();
        setNames(rig, {{"LOW", 1}, {"HIGH", highest}, {"EVERY", -1}});
        rig.edit();
        show(rig, 1);
        click(rig, "HIGH");
        QCOMPARE(value(rig), highest | 1);
        click(rig, "EVERY");
        QCOMPARE(value(rig), -1);
        click(rig, "HIGH");
        QCOMPARE(value(rig), std::numeric_limits<int>::max());
    }

    void anAmpersandInANameIsShown()
    {
        DvSFBitMaskWidget editor;
        EditorRig rig(editor, "sfBitMask");
        setNames(rig, {{"A&B", 1}});
        rig.edit();
        boxes(rig);
        auto* const box = rig.find<QCheckBox>("A&B");
        QVERIFY(box);
        QCOMPARE(box->text(), QStringLiteral("A&&B")); // how Qt writes a plain ampersand
    }
};

TAVRIK_TEST_MAIN(tst_DvSFBitMaskWidget)
#include "tst_DvSFBitMaskWidget.moc"
