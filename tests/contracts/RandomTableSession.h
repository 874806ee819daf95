#pragma once

#include "tests/contracts/TableRows.h"

#include <QRandomGenerator>

/**
 * A multiple-value editor in the hands of somebody who does anything, beside a plain list of texts
 * that says what the field must hold. Commands are undone and redone in their order, as a host does
 * it, and the list knows what each of them means.
 */
class RandomTableSession
{
public:
    RandomTableSession(const TableRow& row, quint32 seed);

    /** One random step; what it was. */
    QString step();
    /** How the field, the table and the list differ; empty when they do not. */
    QString difference();

private:
    using Rows = QList<QByteArray>;
    /** What a command does to the list, backwards and forwards. */
    struct Change
    {
        std::function<void(Rows&)> undo;
        std::function<void(Rows&)> redo;
    };
    enum Ending { Return, Tab, Leave, Escape, AddRow, OtherField, Death };

    QString add();
    QString deleteOne();
    QString deleteRange();
    QString move();
    QString swap();
    QString edit();
    QString undo();
    QString redo();
    QString changeOutside();
    QString resizeOutside();
    QString setToDefault();
    QString die();

    /** A step that the user takes: the sensors have run, and nothing can be redone any more. */
    void beginUserStep();
    void noteAdded();
    void noteWritten(int row, const QByteArray& text);
    void pushed(Change change);
    void insertNew(Rows& rows, int place) const;
    void endCell(Ending ending, int row, const QByteArray& text);
    void endPopup(Ending ending, int row, const QByteArray& text);
    void typeIntoPopup(int row, int element, const QString& typed) const;
    void setCurrent(int row) const;
    int anyRow() { return m_random.bounded(m_expected.size()); }
    QString anyTyped();
    int anyColumn();
    /** The row's text once something else has been typed for one of its numbers. */
    QByteArray afterTyping(int row, int column, const QString& typed) const;
    bool isSame(const QByteArray& left, const QByteArray& right) const;

    const TableRow& m_row;
    const QByteArray m_field;
    const bool m_isMatrix;
    const bool m_isString;
    const bool m_isRotation;
    std::unique_ptr<DvMFieldWidget> m_editor;
    TableRig m_rig;
    QRandomGenerator m_random;
    const Rows m_default;
    Rows m_expected;
    std::vector<Change> m_changes;
    std::size_t m_done = 0; ///< the changes that are not undone
};
