#pragma once

#include <QVector>

class SoField;
class SoNode;
class SoSeparator;

/** A field editor, the field that its picture shows it on, and the row whose cell is open. */
struct AppExhibit
{
    const char* editor;
    const char* node;
    const char* field;
    int openRow = -1; ///< of an editor with a table; none is open if it is negative
};

/** What the gallery shows: each field editor there is, and a scene with a telling field for it. */
class AppExhibits
{
public:
    AppExhibits();
    ~AppExhibits();
    AppExhibits(const AppExhibits&) = delete;
    AppExhibits& operator=(const AppExhibits&) = delete;

    static const QVector<AppExhibit>& all();

    /** Null when the scene has no such node. */
    SoNode* node(const AppExhibit& exhibit) const;
    /** Null when the scene has no such field. */
    SoField* field(const AppExhibit& exhibit) const;

private:
    SoSeparator* m_scene = nullptr; ///< referenced; null when it could not be read
};
