#include "FieldEditors/DvDefaultValue.h"

#include "tests/support/FieldTexts.h"
#include "tests/support/RecordingServices.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodekits/SoSeparatorKit.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSubNode.h>
#include <Inventor/nodes/SoText2.h>

/** A node that counts its living instances. */
class CountedNode : public SoNode
{
    typedef SoNode inherited;
    SO_NODE_HEADER(CountedNode);

public:
    static void initClass();
    CountedNode();

    SoSFFloat height;
    SoSFFloat angle;
    static int s_living;

protected:
    ~CountedNode() override { --s_living; }
};

SO_NODE_SOURCE(CountedNode);
int CountedNode::s_living = 0;

CountedNode::CountedNode()
{
    SO_NODE_CONSTRUCTOR(CountedNode);
    SO_NODE_ADD_FIELD(height, (2.0F));
    SO_NODE_ADD_FIELD(angle, (123.81744384765625F));
    ++s_living;
}

void CountedNode::initClass()
{
    SO_NODE_INIT_CLASS(CountedNode, SoNode, "Node");
}

/** A node of a type that nobody can make an instance of by its type. */
class AbstractNode : public SoNode
{
    typedef SoNode inherited;
    SO_NODE_ABSTRACT_HEADER(AbstractNode);

public:
    static void initClass();
    AbstractNode();

    SoSFFloat height;

protected:
    ~AbstractNode() override = default;
};

SO_NODE_ABSTRACT_SOURCE(AbstractNode);

AbstractNode::AbstractNode()
{
    SO_NODE_CONSTRUCTOR(AbstractNode);
    SO_NODE_ADD_FIELD(height, (2.0F));
}

void AbstractNode::initClass()
{
    SO_NODE_INIT_ABSTRACT_CLASS(AbstractNode, SoNode, "Node");
}

namespace {

/** Keeps a container while it lives. */
template <class Container>
struct Kept
{
    explicit Kept(Container* kept) : container(kept) { container->ref(); }
    ~Kept() { container->unref(); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;
    Container* operator->() const { return container; }

    Container* const container;
};

SoSeparator* readScene(const char* text)
{
    SoInput input;
    input.setBuffer(text, strlen(text));
    return SoDB::readAll(&input);
}

} // namespace

class tst_DvDefaultValue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aFieldGetsTheDefaultOfItsType();
    void theCommandOnTheFieldGoesToTheHost();
    void keepsTheDefaultWhenTheCommandIsUndone();
    void aFieldAtItsDefaultStaysThereAndIsRecorded();
    void theOtherFieldsOfTheNodeKeepTheirValues();
    void aListGetsItsDefault();
    void anEnginesFieldGetsItsDefault();
    void aNodeKitsFieldGetsItsDefault();
    void aNodeKitsPartGetsItsDefault();
    void aFieldOfAnUnknownNodeIsLeftAlone();
    void aFieldAloneIsLeftAlone();
    void aGlobalFieldIsLeftAlone();
    void aFieldOfAnAbstractTypeIsLeftAlone();
    void theFreshInstanceIsReleased();
    void aDefaultOfManyDigitsIsSetToTheLastBit();
    void withoutAHostTheFieldIsStillSet();
};

void tst_DvDefaultValue::initTestCase()
{
    CountedNode::initClass();
    AbstractNode::initClass();
}

void tst_DvDefaultValue::aFieldGetsTheDefaultOfItsType()
{
    RecordingServices services;
    const Kept<SoCone> cone(new SoCone);
    cone->height.setValue(7.0F);
    DvDefaultValue::restore(cone->height);
    QCOMPARE(textOf(cone->height), QByteArray("2"));
    QVERIFY(cone->height.isDefault());
}

void tst_DvDefaultValue::theCommandOnTheFieldGoesToTheHost()
{
    RecordingServices services;
    const Kept<SoCone> cone(new SoCone);
    cone->height.setValue(7.0F);
    DvDefaultValue::restore(cone->height);
    QCOMPARE(services.count(), 1);
    QCOMPARE(services.nullCommands, 0);
    QCOMPARE(services.last().getField(), static_cast<SoField*>(&cone->height));
}

void tst_DvDefaultValue::keepsTheDefaultWhenTheCommandIsUndone()
{
    RecordingServices services;
    const Kept<SoCone> cone(new SoCone);
    cone->height.setValue(7.0F);
    DvDefaultValue::restore(cone->height);
    services.undo(0);
    QCOMPARE(textOf(cone->height), QByteArray("2"));
    services.redo(0);
    QCOMPARE(textOf(cone->height), QByteArray("2"));
}

void tst_DvDefaultValue::aFieldAtItsDefaultStaysThereAndIsRecorded()
{
    RecordingServices services;
    const Kept<SoCone> cone(new SoCone);
    DvDefaultValue::restore(cone->height);
    QVERIFY(cone->height.isDefault());
    QCOMPARE(services.count(), 1);
}

void tst_DvDefaultValue::theOtherFieldsOfTheNodeKeepTheirValues()
{
    RecordingServices services;
    const Kept<SoCone> cone(new SoCone);
    cone->height.setValue(7.0F);
    cone->bottomRadius.setValue(3.0F);
    DvDefaultValue::restore(cone->height);
    QCOMPARE(textOf(cone->bottomRadius), QByteArray("3"));
}

void tst_DvDefaultValue::aListGetsItsDefault()
{
    RecordingServices services;
    const Kept<SoText2> text(new SoText2);
    text->string.set("[ \"one\", \"two\" ]");
    DvDefaultValue::restore(text->string);
    QCOMPARE(rowTextsOf(text->string), QList<QByteArray>({"\"\""}));
}

void tst_DvDefaultValue::anEnginesFieldGetsItsDefault()
{
    RecordingServices services;
    const Kept<SoCalculator> engine(new SoCalculator);
    engine->a.setValue(5.0F);
    DvDefaultValue::restore(engine->a);
    QCOMPARE(textOf(engine->a), QByteArray("0"));
    QCOMPARE(services.count(), 1);
}

void tst_DvDefaultValue::aNodeKitsFieldGetsItsDefault()
{
    RecordingServices services;
    const Kept<SoSeparatorKit> kit(new SoSeparatorKit);
    kit->renderCaching.setValue(SoSeparatorKit::OFF);
    DvDefaultValue::restore(kit->renderCaching);
    QCOMPARE(textOf(kit->renderCaching), QByteArray("AUTO"));
    QCOMPARE(services.count(), 1);
}

void tst_DvDefaultValue::aNodeKitsPartGetsItsDefault()
{
    RecordingServices services;
    const Kept<SoSeparatorKit> kit(new SoSeparatorKit);
    kit->setPart("transform", static_cast<SoNode*>(SoType::fromName("Transform").createInstance()));
    SoField* const part = kit->getField("transform");
    QVERIFY(part);
    DvDefaultValue::restore(*part);
    QCOMPARE(textOf(*part), QByteArray("NULL"));
    QVERIFY(!kit->getPart("transform", FALSE));
}

void tst_DvDefaultValue::aFieldOfAnUnknownNodeIsLeftAlone()
{
    RecordingServices services;
    const Kept<SoSeparator> scene(readScene("#Inventor V2.1 ascii\n"
                                            "NobodysNode { fields [ SFFloat a, SFFloat b ]"
                                            " a 1 b 2 }\n"));
    QCOMPARE(scene->getNumChildren(), 1);
    SoField* const field = scene->getChild(0)->getField("b");
    QVERIFY(field);
    DvDefaultValue::restore(*field);
    QCOMPARE(textOf(*field), QByteArray("2"));
    QCOMPARE(services.count(), 0);
}

void tst_DvDefaultValue::aFieldAloneIsLeftAlone()
{
    RecordingServices services;
    SoSFFloat field;
    field.setValue(7.0F);
    DvDefaultValue::restore(field);
    QCOMPARE(textOf(field), QByteArray("7"));
    QCOMPARE(services.count(), 0);
}

void tst_DvDefaultValue::aGlobalFieldIsLeftAlone()
{
    RecordingServices services;
    SoField* const field = SoDB::createGlobalField("tavrikTest", SoSFFloat::getClassTypeId());
    field->set("7");
    DvDefaultValue::restore(*field);
    QCOMPARE(textOf(*field), QByteArray("7"));
    QCOMPARE(services.count(), 0);
}

void tst_DvDefaultValue::aFieldOfAnAbstractTypeIsLeftAlone()
{
    RecordingServices services;
    const Kept<AbstractNode> node(new AbstractNode);
    node->height.setValue(7.0F);
    DvDefaultValue::restore(node->height);
    QCOMPARE(textOf(node->height), QByteArray("7"));
    QCOMPARE(services.count(), 0);
}

void tst_DvDefaultValue::theFreshInstanceIsReleased()
{
    RecordingServices services;
    const Kept<CountedNode> node(new CountedNode);
    node->height.setValue(7.0F);
    QCOMPARE(CountedNode::s_living, 1);
    DvDefaultValue::restore(node->height);
    QCOMPARE(textOf(node->height), QByteArray("2"));
    QCOMPARE(CountedNode::s_living, 1);
}

void tst_DvDefaultValue::aDefaultOfManyDigitsIsSetToTheLastBit()
{
    RecordingServices services;
    const Kept<CountedNode> node(new CountedNode);
    node->angle.setValue(7.0F);
    DvDefaultValue::restore(node->angle);
    QVERIFY(node->angle.getValue() == 123.81744384765625F);
    services.undo(0);
    QVERIFY(node->angle.getValue() == 123.81744384765625F);
}

void tst_DvDefaultValue::withoutAHostTheFieldIsStillSet()
{
    QVERIFY(!TvkServices::getInstance());
    const Kept<SoCone> cone(new SoCone);
    cone->height.setValue(7.0F);
    DvDefaultValue::restore(cone->height);
    QCOMPARE(textOf(cone->height), QByteArray("2"));
}

TAVRIK_TEST_MAIN(tst_DvDefaultValue)
#include "tst_DvDefaultValue.moc"
