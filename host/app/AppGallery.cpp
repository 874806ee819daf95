#include "app/AppGallery.h"

#include "app/AppPalette.h"
#include "app/AppSampleMessages.h"

#include "lib/HostMainWindow.h"
#include "lib/HostProfileDialog.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QTableWidget>

#include <numeric>

namespace {

constexpr int s_width = 320; ///< of a narrow dock
constexpr QSize s_consoleSize(600, 150);
constexpr int s_gap = 12;
constexpr int s_sheetColumns = 3;

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

int tableHeight(const QTableWidget& table)
{
    return 2 * table.frameWidth() + table.horizontalHeader()->height() +
           table.verticalHeader()->length();
}

QImage grab(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

AppGallery::AppGallery(HostMainWindow& window, const QString& folder)
    : m_window(window), m_folder(folder)
{}

AppGallery::~AppGallery()
{
    m_window.services().selectNode(nullptr);
}

bool AppGallery::run()
{
    if (!m_folder.mkpath(QStringLiteral("."))) {
        return fail(QStringLiteral("the folder %1 cannot be made").arg(m_folder.path()));
    }
    // Pictures that are the same everywhere, and each time.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setCursorFlashTime(0);
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
    for (const AppExhibit& exhibit : AppExhibits::all()) {
        if (!take(exhibit, palette)) {
            return false;
        }
    }
    return writeSheet(palette) && takeProfileDialog(palette) && takeConsole(palette);
}

bool AppGallery::takeProfileDialog(const char* palette)
{
    const HostPluginsManager& manager = m_window.pluginsManager();
    HostProfile sample(QStringLiteral("Materials"), HostProfile::Selected);
    sample.contents = {{QStringLiteral("TvkDefaults/Field Editor")},
                       {QStringLiteral("TvkDefaults/DvMFFloatWidget")}};
    HostProfileDialog dialog(manager.profiles(), &sample, HostProfileDialog::NameAndContents);
    dialog.setContents(manager.extensions(), sample);
    dialog.show();
    QCoreApplication::processEvents();
    return write(grab(dialog), QStringLiteral("HostProfileDialog"), palette);
}

bool AppGallery::takeConsole(const char* palette)
{
    auto* const console = m_window.findChild<QWidget*>(QStringLiteral("m_consoleFrame"));
    if (!console)
        return true; // none of the plug-ins has one
    auto* const clearButton = console->findChild<QPushButton*>(QStringLiteral("m_clearButton"));
    if (clearButton)
        clearButton->click();
    AppSampleMessages::say();
    QCoreApplication::processEvents();
    console->resize(s_consoleSize);
    QCoreApplication::processEvents();
    return write(grab(*console), QStringLiteral("TvkConsole"), palette);
}

bool AppGallery::take(const AppExhibit& exhibit, const char* palette)
{
    m_window.services().selectNode(m_exhibits.node(exhibit));
    m_window.services().selectField(m_exhibits.field(exhibit));
    QCoreApplication::processEvents();
    auto* const editor = m_window.findChild<QWidget*>(QLatin1String(exhibit.editor));
    if (!editor || !editor->isVisible()) {
        return fail(QStringLiteral("no %1").arg(QLatin1String(exhibit.editor)));
    }
    lay(*editor, exhibit.openRow);
    m_pictures.append({QLatin1String(exhibit.editor), pictureOf(*editor)});
    return write(m_pictures.last().image, m_pictures.last().title, palette);
}

/** As narrow as in a dock; a table with room for all of its rows. */
void AppGallery::lay(QWidget& editor, int openRow) const
{
    int height = editor.minimumSizeHint().height();
    auto* const table = editor.findChild<QTableWidget*>(QStringLiteral("m_table"));
    if (table)
        height += tableHeight(*table) - table->minimumSizeHint().height();
    editor.resize(s_width, height);
    if (!table)
        return;
    table->setCurrentCell(1, 0);
    if (openRow >= 0)
        table->edit(table->model()->index(openRow, 0));
}

/** With what the editor pops up below it. */
QImage AppGallery::pictureOf(QWidget& editor) const
{
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
