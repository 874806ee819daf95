#pragma once

#include "lib/HostSceneModel.h"

#include <QAbstractItemModelTester>
#include <QObject>

#include <initializer_list>
#include <memory>

class SoCube;
class SoSeparator;

/** A test of the tree model: each function gets an empty scene, and a model that shows none yet. */
class SceneModelTest : public QObject
{
    Q_OBJECT

protected:
    /** Shows the scene; from here on every answer of the model is checked for consistency. */
    void watch();
    /** The row that these rows lead to, one below the other, from the root's. */
    QModelIndex row(std::initializer_list<int> rows) const;
    /** The shown tree and the scene itself in the same form, one indented line a row. */
    QString shownTree() const;
    QString sceneTree() const;

    static void runSensors();
    static SoCube* namedCube(const char* name);

    SoSeparator* m_root = nullptr;
    std::unique_ptr<HostSceneModel> m_model;

private slots:
    void init();
    void cleanup();

private:
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};
