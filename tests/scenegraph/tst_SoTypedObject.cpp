#include "scenegraph/SoTypedObject.h"

#include "tests/support/TestMain.h"

#include <Inventor/fields/SoMField.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/nodes/SoCone.h>

class tst_SoTypedObject : public QObject
{
    Q_OBJECT

private slots:
    void aNewHandleRefersToNoObject();
    void aHandleOfAFieldHasTheFieldsType();
    void aHandleOfAContainerHasTheContainersType();
    void aHandleOfANullPointerIsNoObject();
    void aCopyRefersToTheSameObject();
};

void tst_SoTypedObject::aNewHandleRefersToNoObject()
{
    const SoTypedObject object;
    QVERIFY(object.isNull());
    QVERIFY(object.getTypeId().isBad());
    QVERIFY(!object.isOfType(SoField::getClassTypeId()));
    QVERIFY(!object.isOfType(SoType::badType()));
}

void tst_SoTypedObject::aHandleOfAFieldHasTheFieldsType()
{
    SoSFFloat field;
    const SoTypedObject object(&field);
    QCOMPARE(object.getField(), static_cast<SoField*>(&field));
    QVERIFY(!object.getFieldContainer());
    QVERIFY(object.getTypeId() == SoSFFloat::getClassTypeId());
    QVERIFY(object.isOfType(SoField::getClassTypeId()));
    QVERIFY(!object.isOfType(SoMField::getClassTypeId()));
}

void tst_SoTypedObject::aHandleOfAContainerHasTheContainersType()
{
    SoCone* cone = new SoCone;
    cone->ref();
    const SoTypedObject object(cone);
    QCOMPARE(object.getFieldContainer(), static_cast<SoFieldContainer*>(cone));
    QVERIFY(!object.getField());
    QVERIFY(object.isOfType(SoNode::getClassTypeId()));
    cone->unref();
}

void tst_SoTypedObject::aHandleOfANullPointerIsNoObject()
{
    QVERIFY(SoTypedObject(static_cast<SoField*>(nullptr)).isNull());
    QVERIFY(SoTypedObject(static_cast<SoFieldContainer*>(nullptr)).getTypeId().isBad());
}

void tst_SoTypedObject::aCopyRefersToTheSameObject()
{
    SoSFFloat field;
    const SoTypedObject object(&field);
    SoTypedObject copy;
    copy = object;
    QCOMPARE(copy.getField(), static_cast<SoField*>(&field));
}

TAVRIK_TEST_MAIN(tst_SoTypedObject)
#include "tst_SoTypedObject.moc"
