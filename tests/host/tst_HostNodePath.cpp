#include "lib/HostNodePath.h"

#include "tests/support/TestMain.h"

#include "lib/HostFullPath.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodekits/SoShapeKit.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>

class tst_HostNodePath : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_root->unref(); }
    void theRootIsASlash();
    void aNamedNodeIsCalledByItsName();
    void anUnnamedNodeIsCalledByItsTypeAndNumber();
    void theSecondOfANameIsCalledByItsType();
    void charactersThatMeanSomethingAreWrittenAsInAUrl();
    void everyNodeIsFoundByItsText();
    void aTypeAloneMeansTheFirst();
    void aNameComesBeforeAType();
    void theHiddenPartsOfANodeKitAreFound();
    void whereAPathEndsIsSaid_data();
    void whereAPathEndsIsSaid();
    void aFieldStandsBehindADot_data();
    void aFieldStandsBehindADot();

private:
    template <class Node>
    Node* add(SoGroup* parent, const char* name = "") const
    {
        auto* node = new Node;
        node->setName(name);
        parent->addChild(node);
        return node;
    }
    /** The text of the path along these rows. */
    QString text(std::initializer_list<int> rows) const;
    /** The node that a text leads to; null when there is none. */
    SoNode* found(const QString& text) const;

    SoSeparator* m_root = nullptr;
};

void tst_HostNodePath::init()
{
    m_root = new SoSeparator;
    m_root->ref();
    auto* lamp = add<SoSeparator>(m_root, "lamp");
    add<SoCube>(lamp);
    add<SoSeparator>(lamp);
    add<SoCube>(lamp);
    add<SoSeparator>(m_root, "lamp");
}

QString tst_HostNodePath::text(std::initializer_list<int> rows) const
{
    SoPath* path = new SoPath(m_root);
    path->ref();
    for (int row : rows)
        path->append(row);
    const QString text = HostNodePath::text(*path);
    path->unref();
    return text;
}

SoNode* tst_HostNodePath::found(const QString& text) const
{
    QString error;
    SoPath* path = HostNodePath::find(*m_root, text, &error);
    if (!path)
        return nullptr;
    path->ref();
    SoNode* node = HostFullPath::tail(*path);
    path->unref();
    return node;
}

void tst_HostNodePath::theRootIsASlash()
{
    QCOMPARE(text({}), QString("/"));
    QCOMPARE(found("/"), static_cast<SoNode*>(m_root));
}

void tst_HostNodePath::aNamedNodeIsCalledByItsName()
{
    QCOMPARE(text({0}), QString("/lamp"));
}

void tst_HostNodePath::anUnnamedNodeIsCalledByItsTypeAndNumber()
{
    QCOMPARE(text({0, 0}), QString("/lamp/Cube[0]"));
    QCOMPARE(text({0, 2}), QString("/lamp/Cube[1]"));
}

void tst_HostNodePath::theSecondOfANameIsCalledByItsType()
{
    QCOMPARE(text({1}), QString("/Separator[1]"));
}

void tst_HostNodePath::charactersThatMeanSomethingAreWrittenAsInAUrl()
{
    SoNode* odd = add<SoCube>(m_root, "a/b[0]%");
    QCOMPARE(text({2}), QString("/a%2Fb%5B0%5D%25"));
    QCOMPARE(found("/a%2Fb%5B0%5D%25"), odd);
}

void tst_HostNodePath::everyNodeIsFoundByItsText()
{
    for (int row = 0; row < 3; ++row)
        QCOMPARE(found(text({0, row})),
                 static_cast<SoSeparator*>(m_root->getChild(0))->getChild(row));
    QCOMPARE(found(text({1})), m_root->getChild(1));
}

void tst_HostNodePath::aTypeAloneMeansTheFirst()
{
    QCOMPARE(found("/lamp/Cube"), found("/lamp/Cube[0]"));
    QVERIFY(found("/lamp/Cube"));
}

void tst_HostNodePath::aNameComesBeforeAType()
{
    SoNode* named = add<SoSeparator>(m_root, "Cube");
    add<SoCube>(m_root);
    QCOMPARE(found("/Cube"), named);
}

void tst_HostNodePath::theHiddenPartsOfANodeKitAreFound()
{
    auto* kit = add<SoShapeKit>(m_root, "kit");
    SoNode* shape = kit->getPart("shape", TRUE);
    QVERIFY(shape);
    QVERIFY(found("/kit/TopSeparator") || found("/kit/Separator"));
}

void tst_HostNodePath::whereAPathEndsIsSaid_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("says");
    QTest::newRow("unknown name") << "/nobody/Cube[0]"
                                  << "no node \"nobody\" below \"/\"";
    QTest::newRow("too far a number") << "/lamp/Cube[2]"
                                      << "no node \"Cube[2]\" below \"/lamp\"";
    QTest::newRow("below a leaf") << "/lamp/Cube[0]/Cone"
                                  << "no node \"Cone\" below \"/lamp/Cube[0]\"";
    QTest::newRow("number beyond all numbers") << "/lamp/Cube[99999999999999]"
                                               << "no node \"Cube[99999999999999]\"";
    QTest::newRow("no number") << "/lamp/Cube[]"
                               << "no node \"Cube[]\"";
}

void tst_HostNodePath::whereAPathEndsIsSaid()
{
    QFETCH(QString, text);
    QFETCH(QString, says);
    QString error;
    QCOMPARE(HostNodePath::find(*m_root, text, &error), nullptr);
    QVERIFY2(error.contains(says), qPrintable(error));
}

void tst_HostNodePath::aFieldStandsBehindADot_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("node");
    QTest::addColumn<QString>("field");
    QTest::newRow("none") << "/lamp/Cube[0]"
                          << "/lamp/Cube[0]"
                          << "";
    QTest::newRow("one") << "/lamp/Cube[0].width"
                         << "/lamp/Cube[0]"
                         << "width";
    QTest::newRow("of the root") << "/.renderCaching"
                                 << "/"
                                 << "renderCaching";
}

void tst_HostNodePath::aFieldStandsBehindADot()
{
    QFETCH(QString, text);
    const HostNodePath::Target target = HostNodePath::split(text);
    QTEST(target.node, "node");
    QTEST(target.field, "field");
}

TAVRIK_TEST_MAIN(tst_HostNodePath)
#include "tst_HostNodePath.moc"
