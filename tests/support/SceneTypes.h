#pragma once

#include <Inventor/SbName.h>
#include <Inventor/SoType.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/lists/SoTypeList.h>
#include <Inventor/nodes/SoNode.h>

#include <QByteArray>
#include <QVector>
#include <QtTest>

/** The types below another of which there can be objects. */
inline QVector<SoType> creatableTypes(SoType base)
{
    SoTypeList list;
    SoType::getAllDerivedFrom(base, list);
    QVector<SoType> types;
    for (int i = 0; i < list.getLength(); ++i)
        if (list[i].canCreateInstance())
            types << list[i];
    return types;
}

/** A row for each type: named for it, and with its name in the column "type". */
inline void addTypeRows(const QVector<SoType>& types)
{
    QTest::addColumn<QByteArray>("type");
    for (const SoType& type : types) {
        const QByteArray name = type.getName().getString();
        QTest::newRow(name.constData()) << name;
    }
}

/** A new object of the type that the test's row names; the caller's. */
template <class Base>
Base* newOfRowType()
{
    QFETCH(QByteArray, type);
    return static_cast<Base*>(SoType::fromName(type.constData()).createInstance());
}

/** The fields of a node that are of a class. */
template <class Field>
QVector<Field*> fieldsOf(const SoNode& node)
{
    SoFieldList all;
    node.getFields(all);
    QVector<Field*> fields;
    for (int i = 0; i < all.getLength(); ++i)
        if (all[i]->isOfType(Field::getClassTypeId()))
            fields << static_cast<Field*>(all[i]);
    return fields;
}

/** The types of node that have a field of a class. */
template <class Field>
QVector<SoType> nodeTypesWith()
{
    QVector<SoType> types;
    for (const SoType& type : creatableTypes(SoNode::getClassTypeId())) {
        auto* const node = static_cast<SoNode*>(type.createInstance());
        node->ref();
        if (!fieldsOf<Field>(*node).isEmpty())
            types << type;
        node->unref();
    }
    return types;
}

/** A field's name with its node's type before it, such as "Cone.height". */
inline QByteArray nameOf(const SoNode& node, const SoField& field)
{
    SbName name;
    node.getFieldName(&field, name);
    return QByteArray(node.getTypeId().getName().getString()) + '.' + name.getString();
}
