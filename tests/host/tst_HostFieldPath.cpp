#include "lib/HostFieldPath.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/nodes/SoCone.h>

class tst_HostFieldPath : public QObject
{
    Q_OBJECT

private slots:
    void aNamedNodesFieldIsWordedWithTheName();
    void anUnnamedNodesFieldIsWordedWithoutOne();
    void anEnginesFieldIsWordedLikeANodes();
    void aGlobalFieldIsWordedByItsName();
    void aFieldWithoutContainerIsWordedByItsType();
    void aFieldThatIsNoneOfItsContainersIsWordedByItsType();
    void noFieldHasNoText();
};

void tst_HostFieldPath::aNamedNodesFieldIsWordedWithTheName()
{
    auto* cone = new SoCone;
    cone->ref();
    cone->setName("hat");
    QCOMPARE(HostFieldPath::text(&cone->height), QString("Cone \"hat\".height"));
    cone->unref();
}

void tst_HostFieldPath::anUnnamedNodesFieldIsWordedWithoutOne()
{
    auto* cone = new SoCone;
    cone->ref();
    QCOMPARE(HostFieldPath::text(&cone->bottomRadius), QString("Cone.bottomRadius"));
    cone->unref();
}

void tst_HostFieldPath::anEnginesFieldIsWordedLikeANodes()
{
    auto* calculator = new SoCalculator;
    calculator->ref();
    QCOMPARE(HostFieldPath::text(&calculator->expression), QString("Calculator.expression"));
    calculator->unref();
}

void tst_HostFieldPath::aGlobalFieldIsWordedByItsName()
{
    const SoField* realTime = SoDB::getGlobalField("realTime");
    QVERIFY(realTime);
    QCOMPARE(HostFieldPath::text(realTime), QString("GlobalField \"realTime\""));
}

void tst_HostFieldPath::aFieldWithoutContainerIsWordedByItsType()
{
    const SoSFFloat field;
    QCOMPARE(HostFieldPath::text(&field), QString("SFFloat"));
}

void tst_HostFieldPath::aFieldThatIsNoneOfItsContainersIsWordedByItsType()
{
    auto* cone = new SoCone;
    cone->ref();
    {
        SoSFFloat field;
        field.setContainer(cone);
        QCOMPARE(HostFieldPath::text(&field), QString("SFFloat"));
    }
    cone->unref();
}

void tst_HostFieldPath::noFieldHasNoText()
{
    QCOMPARE(HostFieldPath::text(nullptr), QString());
}

TAVRIK_TEST_MAIN(tst_HostFieldPath)
#include "tst_HostFieldPath.moc"
