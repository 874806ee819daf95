#include "scenegraph/SoSFFilePathString.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoInput.h>
#include <Inventor/SoOutput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSubNode.h>

#include <cstdlib>

/** A node of one's own with a file path field. */
class TestPathNode : public SoNode
{
    typedef SoNode inherited;
    SO_NODE_HEADER(TestPathNode);

public:
    static void initClass();
    TestPathNode();

    SoSFFilePathString path;
};

SO_NODE_SOURCE(TestPathNode)

void TestPathNode::initClass()
{
    SO_NODE_INIT_CLASS(TestPathNode, SoNode, "Node");
}

TestPathNode::TestPathNode()
{
    SO_NODE_CONSTRUCTOR(TestPathNode);
    SO_NODE_ADD_FIELD(path, (""));
}

namespace {

void* grow(void* buffer, size_t size)
{
    return std::realloc(buffer, size);
}

QByteArray written(SoNode* node, bool binary)
{
    SoOutput output;
    output.setBuffer(nullptr, 0, grow);
    output.setBinary(binary);
    SoWriteAction(&output).apply(node);
    void* buffer = nullptr;
    size_t size = 0;
    output.getBuffer(buffer, size);
    const QByteArray bytes(static_cast<const char*>(buffer), int(size));
    std::free(buffer);
    return bytes;
}

/** A referenced root; null when the text cannot be read. */
SoSeparator* readScene(const QByteArray& bytes)
{
    SoInput input;
    input.setBuffer(bytes.constData(), size_t(bytes.size()));
    SoSeparator* root = SoDB::readAll(&input);
    if (root)
        root->ref();
    return root;
}

SbString pathOf(const SoNode* node)
{
    const auto* field = static_cast<const SoSFFilePathString*>(node->getField("path"));
    return field->getValue();
}

} // namespace

class tst_SoSFFilePathString : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestPathNode::initClass(); }
    void isRegisteredOnceUnderTheShortName();
    void isAStringField();
    void readsAndWritesItsTextLikeAString();
    void aFieldOfAnOwnNodeIsWrittenAndReadBack_data();
    void aFieldOfAnOwnNodeIsWrittenAndReadBack();
    void aFieldOfAnUnknownNodeIsReadAndWrittenBack();
    void aFieldIsCopiedWithItsNode();
    void comparesAndAssignsLikeAnyField();
};

void tst_SoSFFilePathString::isRegisteredOnceUnderTheShortName()
{
    const SoType type = SoSFFilePathString::getClassTypeId();
    QCOMPARE(type.getName().getString(), "SFFilePathString");
    QVERIFY(SoType::fromName("SFFilePathString") == type);
    SoTavrik::init();
    QVERIFY(SoSFFilePathString::getClassTypeId() == type);
}

void tst_SoSFFilePathString::isAStringField()
{
    const SoType type = SoSFFilePathString::getClassTypeId();
    QVERIFY(type.isDerivedFrom(SoSFString::getClassTypeId()));
    QVERIFY(type.canCreateInstance());
    const QScopedPointer<SoField> field(static_cast<SoField*>(type.createInstance()));
    QVERIFY(field->getTypeId() == type);
}

void tst_SoSFFilePathString::readsAndWritesItsTextLikeAString()
{
    SoSFFilePathString field;
    QVERIFY(field.set("\"/a \\\"b\\\"/ä.iv\""));
    QCOMPARE(field.getValue().getString(), "/a \"b\"/ä.iv");
    SbString text;
    field.get(text);
    QCOMPARE(text.getString(), "\"/a \\\"b\\\"/ä.iv\"");
}

void tst_SoSFFilePathString::aFieldOfAnOwnNodeIsWrittenAndReadBack_data()
{
    QTest::addColumn<bool>("binary");
    QTest::newRow("text") << false;
    QTest::newRow("binary") << true;
}

void tst_SoSFFilePathString::aFieldOfAnOwnNodeIsWrittenAndReadBack()
{
    QFETCH(bool, binary);
    auto* node = new TestPathNode;
    node->ref();
    node->path.setValue("/scenes/the \"red\" ä.iv");
    SoSeparator* root = readScene(written(node, binary));
    node->unref();
    QVERIFY(root);
    QVERIFY(root->getChild(0)->isOfType(TestPathNode::getClassTypeId()));
    QCOMPARE(pathOf(root->getChild(0)).getString(), "/scenes/the \"red\" ä.iv");
    root->unref();
}

void tst_SoSFFilePathString::aFieldOfAnUnknownNodeIsReadAndWrittenBack()
{
    SoSeparator* root = readScene("#Inventor V2.1 ascii\n"
                                  "Foreign { fields [ SFFilePathString path ] path \"/x y\" }\n");
    QVERIFY(root);
    const SoField* field = root->getChild(0)->getField("path");
    QVERIFY(field);
    QVERIFY(field->isOfType(SoSFFilePathString::getClassTypeId()));
    SoSeparator* again = readScene(written(root, false));
    root->unref();
    QVERIFY(again);
    QCOMPARE(pathOf(again->getChild(0)).getString(), "/x y");
    again->unref();
}

void tst_SoSFFilePathString::aFieldIsCopiedWithItsNode()
{
    auto* node = new TestPathNode;
    node->ref();
    node->path.setValue("/a");
    SoNode* copy = node->copy();
    copy->ref();
    node->path.setValue("/b");
    QCOMPARE(pathOf(copy).getString(), "/a");
    copy->unref();
    node->unref();
}

void tst_SoSFFilePathString::comparesAndAssignsLikeAnyField()
{
    SoSFFilePathString a;
    SoSFFilePathString b;
    a.setValue("/a");
    QVERIFY(!a.isSame(b));
    b = a;
    QVERIFY(a.isSame(b));
    b = SbString("/b");
    QCOMPARE(b.getValue().getString(), "/b");
}

TAVRIK_TEST_MAIN(tst_SoSFFilePathString)
#include "tst_SoSFFilePathString.moc"
