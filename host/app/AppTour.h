#pragma once

#include <QDir>
#include <QImage>
#include <QString>

class AppWindow;
class QLineEdit;
class QPushButton;
class SoPath;

/**
 * Edits the open scene by itself as a user would, writes a picture of each step into a folder, and
 * checks on the screen that each step did what it should.
 */
class AppTour
{
public:
    /** The window is not owned; it has its scene. Nodes below one named "lamp" are preferred. */
    AppTour(AppWindow& window, const QString& folder);

    /** Takes a few seconds. False when a step failed: message() says which, or sums up. */
    bool run();
    QString message() const { return m_message; }

private:
    struct Target
    {
        const char* type;
        const char* field;
    };

    bool waitForScene();
    bool filterFields();
    bool editVector();
    bool undoEdit();
    bool ignoreField();
    bool undoIgnore();
    bool showConsole();

    bool select(const QVector<Target>& targets);
    bool selectNode(const char* type);
    SoPath* find(const char* type) const;
    bool selectField(const char* name);
    bool chooseFromEditMenu(const char* actionName);
    QLineEdit* vectorLine() const;
    QPushButton* ignoreButton() const;

    bool fail(const QString& message);
    bool expectChange(const char* what);
    bool expectNoChange(const char* what);
    bool take(const char* name);

    AppWindow& m_window;
    QDir m_folder;
    QImage m_before; ///< the 3D picture that the next step is compared with
    int m_pictures = 0;
    QString m_message;
};
