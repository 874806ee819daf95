#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "scenegraph/SoMFieldRows.h"

#include <Inventor/errors/SoReadError.h>
#include <Inventor/fields/SoMFBitMask.h>
#include <Inventor/lists/SoTypeList.h>
#include <Inventor/nodes/SoCube.h>

#include <map>
#include <memory>

namespace {

void keepQuiet(const SoError*, void*) {}

/** The types that have an editor of their own; the others come to this one. */
bool hasOwnEditor(SoType type)
{
    const SoType own[] = {
        SoMFColor::getClassTypeId(),    SoMFDouble::getClassTypeId(), SoMFFloat::getClassTypeId(),
        SoMFInt32::getClassTypeId(),    SoMFMatrix::getClassTypeId(), SoMFPlane::getClassTypeId(),
        SoMFRotation::getClassTypeId(), SoMFShort::getClassTypeId(),  SoMFString::getClassTypeId(),
        SoMFUInt32::getClassTypeId(),   SoMFUShort::getClassTypeId(), SoMFVec2f::getClassTypeId(),
        SoMFVec2i32::getClassTypeId(),  SoMFVec2s::getClassTypeId(),  SoMFVec3f::getClassTypeId(),
        SoMFVec4f::getClassTypeId()};
    return std::any_of(std::begin(own), std::end(own),
                       [type](SoType editors) { return type.isDerivedFrom(editors); });
}

/** A new field of the type, or null: the names of numeric types of old are no types of fields. */
std::unique_ptr<SoMField> newField(SoType type)
{
    if (!type.canCreateInstance() || hasOwnEditor(type))
        return nullptr;
    std::unique_ptr<SoMField> field(static_cast<SoMField*>(type.createInstance()));
    if (field->getTypeId() != type)
        return nullptr;
    if (field->isOfType(SoMFEnum::getClassTypeId())) {
        const int values[] = {1, 2};
        const SbName names[] = {"ONE", "TWO"};
        static_cast<SoMFEnum&>(*field).setEnums(2, values, names);
    }
    return field;
}

/** A text that fields of the type read; where no other is known, numbers: too many do no harm. */
QByteArray readableText(SoType type)
{
    static const std::map<QByteArray, QByteArray> s_texts = {{"MFBitMask", "(ONE | TWO)"},
                                                             {"MFBool", "TRUE"},
                                                             {"MFEngine", "Calculator { }"},
                                                             {"MFEnum", "TWO"},
                                                             {"MFName", "name"},
                                                             {"MFNode", "Cube { }"},
                                                             {"MFPath", "Path { Cube { } 0 }"}};
    const auto found = s_texts.find(type.getName().getString());
    return found == s_texts.end() ? QByteArray("1 1 1 1 1 1") : found->second;
}

} // namespace

class tst_DvMFDefaultFieldWidget : public QObject
{
    Q_OBJECT

private:
    static void addTypes()
    {
        QTest::addColumn<QByteArray>("type");
        SoTypeList types;
        SoType::getAllDerivedFrom(SoMField::getClassTypeId(), types);
        for (int i = 0; i < types.getLength(); ++i) {
            const QByteArray name = types[i].getName().getString();
            if (newField(types[i]))
                QTest::newRow(name.constData()) << name;
        }
    }

    static std::unique_ptr<SoMField> fetchField()
    {
        QFETCH(QByteArray, type);
        return newField(SoType::fromName(type.constData()));
    }

private slots:
    void initTestCase()
    {
        SoEveryField::initClass();
        // Fields of some types tell that they cannot read what a new row holds.
        SoReadError::setHandlerCallback(keepQuiet, nullptr);
    }

    void thereAreManyTypesWithoutAnEditorOfTheirOwn()
    {
        SoTypeList types;
        SoType::getAllDerivedFrom(SoMField::getClassTypeId(), types);
        int count = 0;
        for (int i = 0; i < types.getLength(); ++i)
            count += newField(types[i]) != nullptr;
        QVERIFY2(count >= 22, QByteArray::number(count));
    }

    void showsAndEditsAFieldOfAnyType_data() { addTypes(); }
    void showsAndEditsAFieldOfAnyType()
    {
        const std::unique_ptr<SoMField> field = fetchField();
        const QByteArray text = readableText(field->getTypeId());
        DvMFDefaultFieldWidget editor;
        TableRig rig(editor, "mfTime");
        rig.edit(*field);
        QCOMPARE(rig.table().rowCount(), field->getNum());
        // As many rows as are added, and back again.
        const int before = field->getNum();
        rig.click("m_addButton");
        rig.click("m_addButton");
        QCOMPARE(field->getNum(), before + 2);
        rig.host.services.undo(1);
        QCOMPARE(field->getNum(), before + 1);
        rig.host.services.redo(1);
        TableRig::runSensors();
        for (int row = 0; row < field->getNum(); ++row)
            QCOMPARE(rig.shownRow(row).simplified().toUtf8(), rig.rows()[row]);
        // An edit that the field reads.
        editor.applyCell(0, 0, QString::fromLatin1(text));
        const QByteArray written = rig.rows()[0];
        const std::unique_ptr<SoMField> model = newField(field->getTypeId());
        QVERIFY(SoMFieldRows::insertEmpty(model.get(), 0, 1));
        QVERIFY(SoMFieldRows::set1(model.get(), 0, text.constData()));
        QCOMPARE(written, rowTextsOf(*model)[0].simplified());
        QCOMPARE(rig.host.services.count(), 3);
        rig.host.services.undo(2);
        QCOMPARE(rig.rows()[0], written);
        // And down to none.
        while (field->getNum() > 0) {
            rig.table().setCurrentCell(0, 0);
            rig.click("m_deleteButton");
        }
        TableRig::runSensors();
        QCOMPARE(rig.table().rowCount(), 0);
        editor.deactivate();
    }

    void aTextThatTheFieldCannotReadLeavesTheRowWhole()
    {
        DvMFDefaultFieldWidget editor;
        const TableRig rig(editor, "mfEnum");
        rig.enter(1, 0, QStringLiteral("NEVER"));
        QCOMPARE(rig.rows(), QList<QByteArray>({"FIRST", "SECOND", "THIRD"}));
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("SECOND"));
    }

    void aNameIsTypedInPlaceOfAnother()
    {
        DvMFDefaultFieldWidget editor;
        const TableRig rig(editor, "mfEnum");
        rig.enter(1, 0, QStringLiteral("THIRD"));
        QCOMPARE(rig.rows()[1], QByteArray("THIRD"));
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(dynamic_cast<TvkMFSetValueCommand*>(&rig.host.services.at(0)));
    }

    void visitingARowOfNodesKeepsTheNodesThemselves()
    {
        DvMFDefaultFieldWidget editor;
        const TableRig rig(editor, "mfNode");
        const SoNode* const before = rig.node->mfNode[1];
        rig.openCell(1, 0);
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        rig.leave();
        QCOMPARE(rig.node->mfNode[1], before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void typingTheSameTextAgainKeepsTheNodeItself()
    {
        DvMFDefaultFieldWidget editor;
        const TableRig rig(editor, "mfNode");
        const SoNode* const before = rig.node->mfNode[1];
        rig.openCell(1, 0);
        QTest::keyClick(rig.openLine(), Qt::Key_End);
        QTest::keyClicks(rig.openLine(), QStringLiteral(" "));
        QTest::keyClick(rig.openLine(), Qt::Key_Backspace);
        QVERIFY(rig.openLine()->isModified());
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        QCOMPARE(rig.node->mfNode[1], before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anotherNodeCanBeTyped()
    {
        DvMFDefaultFieldWidget editor;
        const TableRig rig(editor, "mfNode");
        rig.enter(2, 0, QStringLiteral("Cube { width 7 }"));
        const SoNode* const typed = rig.node->mfNode[2];
        QVERIFY(typed->isOfType(SoCube::getClassTypeId()));
        QCOMPARE(static_cast<const SoCube*>(typed)->width.getValue(), 7.0F);
        QCOMPARE(rig.host.services.count(), 1);
    }
};

TAVRIK_TEST_MAIN(tst_DvMFDefaultFieldWidget)
#include "tst_DvMFDefaultFieldWidget.moc"
