#include "app/AppGallery.h"

#include "app/AppPalette.h"

#include "lib/HostMainWindow.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/fields/SoSFImage.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>

#include <cstring>
#include <numeric>

namespace {

constexpr int s_width = 320; ///< of a narrow dock
constexpr int s_gap = 12;
constexpr int s_sheetColumns = 3;

const char* const s_scene =
    "#Inventor V2.1 ascii\n"
    "Separator {\n"
    "  DEF things Things {\n"
    "    fields [ SFBool on, SFBox3s box, SFColor color, SFDouble precise, SFFilePathString path,\n"
    "      SFFloat real, SFImage image, SFInt32 number, SFTime time, SFMatrix matrix,\n"
    "      SFName name, SFPlane plane, SFRotation rotation, SFShort little, SFString text,\n"
    "      SFUInt32 natural, SFUShort littleNatural, SFVec2f spot, SFVec2i32 cell,\n"
    "      SFVec2s littleCell, SFVec3f place, SFVec4f quad ]\n"
    "    on TRUE  box -10 -20 -30  10 20 30  color 0.93 0.55 0.13  precise 3.141592653589793\n"
    "    path \"pictures/parrot.png\"  real 2.5  number 42  time 12.5  name \"parrot\"\n"
    "    matrix 1 0 0 0  0 0.866 0.5 0  0 -0.5 0.866 0  4 5 6 1  plane 0 1 0 2\n"
    "    rotation 0 1 0 0.7853982  little -7  text \"A parrot said \\\"hello\\\"\"\n"
    "    natural 255  littleNatural 31  spot 0.5 0.25  cell 1920 1080  littleCell 640 480\n"
    "    place 1 -2.5 1e-07  quad 1 2 3 4\n"
    "  }\n"
    "  DEF style DrawStyle { style LINES }\n"
    "  DEF can Cylinder { parts (SIDES | TOP) }\n"
    "}\n";

SoSeparator* readScene()
{
    SoInput input;
    input.setBuffer(s_scene, std::strlen(s_scene));
    return SoDB::readAll(&input);
}

/** A sky above a meadow. */
void paintImage(SoSFImage& field)
{
    const SbVec2s size(96, 64);
    QByteArray pixels;
    for (int y = 0; y < size[1]; ++y) {
        for (int x = 0; x < size[0]; ++x) {
            const bool isSky = y > 20 + (x * (96 - x)) / 200;
            const QRgb color = isSky ? qRgb(90 + y, 150 + y, 230) : qRgb(60 + x, 120 + 2 * y, 40);
            pixels.append(char(qRed(color))).append(char(qGreen(color))).append(char(qBlue(color)));
        }
    }
    const QVector<unsigned char> bytes(pixels.begin(), pixels.end());
    field.setValue(size, 3, bytes.constData());
}

SoNode* child(const SoSeparator& scene, const char* name)
{
    for (int i = 0; i < scene.getNumChildren(); ++i) {
        if (scene.getChild(i)->getName() == name) {
            return scene.getChild(i);
        }
    }
    return nullptr;
}

QString scaleName(const QWidget& widget)
{
    return QStringLiteral("%1x").arg(widget.devicePixelRatioF());
}

QImage below(const QImage& upper, const QImage& lower, const QColor& background)
{
    const qreal scale = upper.devicePixelRatio();
    const int gap = qRound(s_gap * scale / 3);
    const int width = qMax(upper.width(), lower.width());
    QImage both(width, upper.height() + gap + lower.height(), QImage::Format_RGB32);
    both.fill(background);
    QPainter painter(&both);
    painter.drawImage(QRect(QPoint(), upper.size()), upper);
    painter.drawImage(QRect(QPoint(0, upper.height() + gap), lower.size()), lower);
    painter.end();
    both.setDevicePixelRatio(scale);
    return both;
}

QImage grab(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

const QVector<AppGallery::Exhibit>& AppGallery::exhibits()
{
    static const QVector<Exhibit> s_exhibits = {
        {"DvSFBitMaskWidget", "can", "parts"},
        {"DvSFBoolWidget", "things", "on"},
        {"DvSFBox3sWidget", "things", "box"},
        {"DvSFColorWidget", "things", "color"},
        {"DvSFDoubleWidget", "things", "precise"},
        {"DvSFEnumWidget", "style", "style"},
        {"DvSFFilePathStringWidget", "things", "path"},
        {"DvSFFloatWidget", "things", "real"},
        {"DvSFImageWidget", "things", "image"},
        {"DvSFInt32Widget", "things", "number"},
        {"DvSFLineWidget", "things", "time"},
        {"DvSFMatrixWidget", "things", "matrix"},
        {"DvSFNameWidget", "things", "name"},
        {"DvSFPlaneWidget", "things", "plane"},
        {"DvSFRotationWidget", "things", "rotation"},
        {"DvSFShortWidget", "things", "little"},
        {"DvSFStringWidget", "things", "text"},
        {"DvSFUInt32Widget", "things", "natural"},
        {"DvSFUShortWidget", "things", "littleNatural"},
        {"DvSFVec2fWidget", "things", "spot"},
        {"DvSFVec2i32Widget", "things", "cell"},
        {"DvSFVec2sWidget", "things", "littleCell"},
        {"DvSFVec3fWidget", "things", "place"},
        {"DvSFVec4fWidget", "things", "quad"},
    };
    return s_exhibits;
}

AppGallery::AppGallery(HostMainWindow& window, const QString& folder)
    : m_window(window), m_folder(folder), m_scene(readScene())
{
    if (m_scene) {
        m_scene->ref();
        paintImage(*static_cast<SoSFImage*>(child(*m_scene, "things")->getField("image")));
    }
}

AppGallery::~AppGallery()
{
    m_window.services().selectNode(nullptr);
    if (m_scene) {
        m_scene->unref();
    }
}

bool AppGallery::run()
{
    if (!m_scene || !m_folder.mkpath(QStringLiteral("."))) {
        return fail(QStringLiteral("the folder %1 cannot be made").arg(m_folder.path()));
    }
    // Pictures that are the same everywhere.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (!hang("light") || !hang("dark")) {
        return false;
    }
    m_message = QStringLiteral("the gallery wrote %1 pictures into %2")
                    .arg(QString::number(m_written), m_folder.absolutePath());
    return true;
}

bool AppGallery::hang(const char* palette)
{
    QApplication::setPalette(AppPalette::named(QLatin1String(palette)));
    m_pictures.clear();
    for (const Exhibit& exhibit : exhibits()) {
        if (!take(exhibit, palette)) {
            return false;
        }
    }
    return writeSheet(palette);
}

bool AppGallery::take(const Exhibit& exhibit, const char* palette)
{
    SoNode* const node = child(*m_scene, exhibit.node);
    m_window.services().selectNode(node);
    m_window.services().selectField(node ? node->getField(exhibit.field) : nullptr);
    QCoreApplication::processEvents();
    auto* const editor = m_window.findChild<QWidget*>(QLatin1String(exhibit.editor));
    if (!editor || !editor->isVisible()) {
        return fail(QStringLiteral("no %1").arg(QLatin1String(exhibit.editor)));
    }
    m_pictures.append({QLatin1String(exhibit.editor), pictureOf(*editor)});
    return write(m_pictures.last().image, m_pictures.last().title, palette);
}

/** With what the editor pops up below it. */
QImage AppGallery::pictureOf(QWidget& editor) const
{
    editor.resize(s_width, editor.minimumSizeHint().height());
    QImage image = grab(editor);
    auto* const button = editor.findChild<QPushButton*>(QStringLiteral("m_editButton"));
    if (!button) {
        return image;
    }
    button->click();
    QWidget* const popup = QApplication::activePopupWidget();
    const QImage picture = popup ? grab(*popup) : QImage();
    button->click();
    return below(image, picture, editor.palette().color(QPalette::Window));
}

/** The heights of the sheet's rows: a title, and the highest picture. */
QVector<int> AppGallery::rowHeights() const
{
    QVector<int> heights((m_pictures.size() + s_sheetColumns - 1) / s_sheetColumns, 0);
    for (int i = 0; i < m_pictures.size(); ++i) {
        const QImage& image = m_pictures[i].image;
        int& height = heights[i / s_sheetColumns];
        height = qMax(height, m_window.fontMetrics().height() +
                                  qRound(image.height() / image.devicePixelRatio()));
    }
    return heights;
}

int AppGallery::columnWidth() const
{
    int width = s_width;
    for (const Picture& picture : m_pictures) {
        width = qMax(width, qRound(picture.image.width() / picture.image.devicePixelRatio()));
    }
    return width;
}

void AppGallery::paintSheet(QPainter& painter, const QVector<int>& heights) const
{
    const int titleHeight = m_window.fontMetrics().height();
    QPoint corner(s_gap, s_gap);
    for (int i = 0; i < m_pictures.size(); ++i) {
        painter.drawText(QRect(corner, QSize(columnWidth(), titleHeight)), m_pictures[i].title);
        painter.drawImage(corner + QPoint(0, titleHeight), m_pictures[i].image);
        corner.rx() += columnWidth() + s_gap;
        if (i % s_sheetColumns == s_sheetColumns - 1) {
            corner = {s_gap, corner.y() + heights[i / s_sheetColumns] + s_gap};
        }
    }
}

bool AppGallery::writeSheet(const char* palette)
{
    const QVector<int> heights = rowHeights();
    const int height =
        std::accumulate(heights.begin(), heights.end(), s_gap * (heights.size() + 1));
    const qreal scale = m_window.devicePixelRatioF();
    QImage sheet(QSize(s_gap + s_sheetColumns * (columnWidth() + s_gap), height) * scale,
                 QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&sheet);
    painter.setFont(m_window.font());
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    paintSheet(painter, heights);
    painter.end();
    return write(sheet, QStringLiteral("sheet"), palette);
}

bool AppGallery::write(const QImage& image, const QString& name, const char* palette)
{
    const QString path = m_folder.filePath(
        QStringLiteral("%1-%2-%3.png").arg(name, QLatin1String(palette), scaleName(m_window)));
    ++m_written;
    return image.save(path) || fail(QStringLiteral("%1 cannot be written").arg(path));
}

bool AppGallery::fail(const QString& message)
{
    m_message = QStringLiteral("the gallery failed: %1").arg(message);
    return false;
}
