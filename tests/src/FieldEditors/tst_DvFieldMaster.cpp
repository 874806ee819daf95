#include "tests/support/SoEveryField.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/DvFieldMaster.h"

#include <Inventor/engines/SoCompose.h>
#include <Inventor/nodes/SoCone.h>

#include <QtTest>

class tst_DvFieldMaster : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SoEveryField::initClass();
        m_node = new SoEveryField;
        m_node->ref();
    }
    void cleanupTestCase() { m_node->unref(); }
    void cleanup()
    {
        m_node->mfVec2f.disconnect();
        m_node->mfString.disconnect();
    }

    void aFieldIsNamedWithTheTypeOfItsNode()
    {
        auto* const cone = new SoCone;
        cone->ref();
        SoSFFloat field;
        field.connectFrom(&cone->height);
        QCOMPARE(DvFieldMaster::nameOf(field), QStringLiteral("Cone.height"));
        field.disconnect();
        cone->unref();
    }

    void theFieldBehindAConverterIsNamed()
    {
        m_node->mfString.connectFrom(&m_node->mfInt32);
        QCOMPARE(DvFieldMaster::nameOf(m_node->mfString), QStringLiteral("SoEveryField.mfInt32"));
    }

    void anEngineIsNamedByItsType()
    {
        auto* const engine = new SoComposeVec2f;
        engine->ref();
        m_node->mfVec2f.connectFrom(&engine->vector);
        QCOMPARE(DvFieldMaster::nameOf(m_node->mfVec2f), QStringLiteral("engine ComposeVec2f"));
        m_node->mfVec2f.disconnect();
        engine->unref();
    }

    void aFieldWithoutAContainerHasNoName()
    {
        SoMFVec2f master;
        m_node->mfVec2f.connectFrom(&master);
        QCOMPARE(DvFieldMaster::nameOf(m_node->mfVec2f), QStringLiteral("elsewhere"));
        m_node->mfVec2f.disconnect();
    }

private:
    SoEveryField* m_node = nullptr;
};

TAVRIK_TEST_MAIN(tst_DvFieldMaster)
#include "tst_DvFieldMaster.moc"
