#pragma once

#include "app/AppExhibits.h"

#include <QDir>
#include <QImage>
#include <QString>
#include <QVector>

class HostMainWindow;
class QPainter;
class QWidget;

/**
 * Makes a picture of every field editor as it stands in a narrow dock, in a light and in a dark
 * palette, and of all of them on one sheet. A file is named for the editor, the palette and the
 * display's scale, such as "DvSFColorWidget-dark-2x.png"; each scale takes a run of its own.
 */
class AppGallery
{
public:
    /** The window is not owned; its plug-ins are loaded. */
    AppGallery(HostMainWindow& window, const QString& folder);
    ~AppGallery();
    AppGallery(const AppGallery&) = delete;
    AppGallery& operator=(const AppGallery&) = delete;

    /** False when an editor is missing or a file cannot be written: message() says which. */
    bool run();
    QString message() const { return m_message; }

private:
    struct Picture
    {
        QString title;
        QImage image;
    };

    bool hang(const char* palette);
    bool takeProfileDialog(const char* palette);
    bool takeConsole(const char* palette);
    bool take(const AppExhibit& exhibit, const char* palette);
    void lay(QWidget& editor, int openRow) const;
    QImage pictureOf(QWidget& editor) const;
    QVector<int> rowHeights() const;
    int columnWidth() const;
    void paintSheet(QPainter& painter, const QVector<int>& heights) const;
    bool writeSheet(const char* palette);
    bool write(const QImage& image, const QString& name, const char* palette);
    bool fail(const QString& message);

    HostMainWindow& m_window;
    QDir m_folder;
    AppExhibits m_exhibits;
    QVector<Picture> m_pictures; ///< those of the palette in hand
    int m_written = 0;
    QString m_message;
};
