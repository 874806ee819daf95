#include "FieldEditors/DvMFieldTableItemDelegate.h"

#include "FieldEditors/DvCellValidators.h"
#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldWidget.h"
#include "FieldEditors/DvSlider.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSlider>
#include <QValidator>

#include <limits>
#include <memory>

namespace {

struct SliderOfKind
{
    int valueKind;
    int sliderKind;
};
const SliderOfKind s_sliders[] = {
    {DvMFieldTableItemDelegate::ShortKind, DvSlider::ShortKind},
    {DvMFieldTableItemDelegate::UShortKind, DvSlider::UShortKind},
    {DvMFieldTableItemDelegate::Int32Kind, DvSlider::Int32Kind},
    {DvMFieldTableItemDelegate::UInt32Kind, DvSlider::UInt32Kind},
    {DvMFieldTableItemDelegate::FloatKind, DvSlider::FloatKind},
};

int sliderKindOf(int valueKind)
{
    for (const SliderOfKind& row : s_sliders) {
        if (row.valueKind == valueKind)
            return row.sliderKind;
    }
    return DvSlider::NoKind;
}

/** Where one types: the editor itself, or the line of a slider. */
QLineEdit* lineOf(QWidget& editor)
{
    auto* const line = qobject_cast<QLineEdit*>(&editor);
    return line ? line : editor.findChild<QLineEdit*>(QStringLiteral("lineEdit"));
}

bool isChangedByUser(QWidget& editor)
{
    const auto* const thumb = editor.findChild<QSlider*>();
    return lineOf(editor)->isModified() || (thumb && thumb->isSliderDown());
}

/** A text cut, character by character, to what fits, and ended with three dots. */
QString fitting(const QString& text, const QFontMetrics& metrics, int width)
{
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    const QString dots = QStringLiteral("...");
    QString cut = text.left(width / std::max(1, metrics.horizontalAdvance(QLatin1Char('.'))) + 1);
    while (!cut.isEmpty() && metrics.horizontalAdvance(cut + dots) > width)
        cut.chop(cut.at(cut.size() - 1).isLowSurrogate() && cut.size() > 1 ? 2 : 1);
    return cut + dots;
}

} // namespace

DvMFieldTableItemDelegate::DvMFieldTableItemDelegate(DvMFieldWidget& owner, QObject* parent)
    : QItemDelegate(parent), m_owner(owner)
{
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)),
            SLOT(s_focusChanged(QWidget*, QWidget*)));
}

void DvMFieldTableItemDelegate::setIntegerRange(int minimum, int maximum, bool bounded)
{
    m_integerMinimum = minimum;
    m_integerMaximum = maximum;
    m_bounded = bounded;
}

void DvMFieldTableItemDelegate::setRealRange(double minimum, double maximum, bool bounded)
{
    m_realMinimum = minimum;
    m_realMaximum = maximum;
    m_bounded = bounded;
}

void DvMFieldTableItemDelegate::setValidator(QLineEdit& line) const
{
    line.setValidator(DvCellValidators::newValidator(m_valueKind, &line));
}

QWidget* DvMFieldTableItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                                 const QModelIndex& index) const
{
    if (isOnlyColumnSlider(index))
        m_editor = newSlider(parent, index);
    else
        m_editor = newLine(parent, index);
    m_index = index;
    return m_editor;
}

bool DvMFieldTableItemDelegate::isOnlyColumnSlider(const QModelIndex& index) const
{
    return index.column() == 0 && index.model()->columnCount() == 1 &&
           sliderKindOf(m_valueKind) != DvSlider::NoKind;
}

void DvMFieldTableItemDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    // It is deleted later; until then nobody must take it for the open one.
    if (editor == m_editor)
        m_editor = nullptr;
    QItemDelegate::destroyEditor(editor, index);
}

QWidget* DvMFieldTableItemDelegate::newLine(QWidget* parent, const QModelIndex& index) const
{
    auto* const line = new QLineEdit(parent);
    line->setObjectName(QStringLiteral("qt_lineeditor"));
    line->setFrame(false);
    line->setMaxLength(std::numeric_limits<int>::max());
    line->setText(m_owner.table().shownText(index.row(), index.column()));
    setValidator(*line);
    return line;
}

DvSlider* DvMFieldTableItemDelegate::newSlider(QWidget* parent, const QModelIndex& index) const
{
    DvSlider* const slider = DvSlider::create(sliderKindOf(m_valueKind), 1, m_owner.sliderOwner(),
                                              parent, index.row(), index.column());
    if (!slider)
        return nullptr;
    if (m_valueKind == FloatKind)
        slider->setCellRange(m_realMinimum, m_realMaximum, m_bounded);
    else
        slider->setCellRange(m_integerMinimum, m_integerMaximum, m_bounded);
    slider->setAutoFillBackground(true);
    QLineEdit* const line = lineOf(*slider);
    slider->setFocusProxy(line);
    line->installEventFilter(const_cast<DvMFieldTableItemDelegate*>(this));
    return slider;
}

void DvMFieldTableItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = m_owner.table().shownText(index.row(), index.column());
    if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
        if (!line->isModified() && line->text() != text)
            line->setText(text);
    } else if (auto* const slider = qobject_cast<DvSlider*>(editor)) {
        slider->showCellText(text);
    }
}

void DvMFieldTableItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                             const QModelIndex& index) const
{
    DvMFieldTable& table = m_owner.table();
    // The open editor is the cell's widget, too, and must live on until the view closes it.
    QWidget* const cellWidget = table.cellWidget(index.row(), index.column());
    if (cellWidget && cellWidget != editor)
        table.removeCellWidget(index.row(), index.column());
    QLineEdit* const line = lineOf(*editor);
    if (!line) {
        QItemDelegate::setModelData(editor, model, index);
        return;
    }
    const bool isAcceptable = line->hasAcceptableInput();
    if (auto* const slider = qobject_cast<DvSlider*>(editor)) {
        if (isAcceptable)
            slider->changeValueFromEdit();
        else
            slider->revertPendingEdit();
    } else if (line->isModified()) {
        line->setModified(false);
        commitText(index.row(), index.column(), line->text(), isAcceptable);
    }
}

void DvMFieldTableItemDelegate::commitText(int row, int column, const QString& text,
                                           bool isAcceptable) const
{
    // Kept on purpose: a text that is only intermediate shows in the cell and does not reach the
    // field.
    m_owner.table().keepTypedText(row, column, text);
    if (isAcceptable && !m_owner.isReadOnly())
        m_owner.applyCell(row, column, text);
}

bool DvMFieldTableItemDelegate::enterText(int row, int column, const QString& text)
{
    const QModelIndex index = m_owner.table().model()->index(row, column);
    const bool isInteger = m_valueKind != FloatKind && isOnlyColumnSlider(index);
    QString entered = isInteger ? DvCellValidators::inBase10(text) : text;
    const std::unique_ptr<QValidator> validator(
        DvCellValidators::newEntryValidator(m_valueKind, nullptr));
    int position = 0;
    const bool isAcceptable =
        !validator || validator->validate(entered, position) == QValidator::Acceptable;
    commitText(row, column, entered, isAcceptable);
    return isAcceptable;
}

void DvMFieldTableItemDelegate::updateEditorGeometry(QWidget* editor,
                                                     const QStyleOptionViewItem& option,
                                                     const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

void DvMFieldTableItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    DvMFieldTable& table = m_owner.table();
    const QString text = table.shownText(index.row(), index.column());
    table.notePainted(index.row(), index.column());
    painter->save();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (isSelected)
        painter->fillRect(option.rect, option.palette.highlight());
    drawText(painter, option, text,
             option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->restore();
}

void DvMFieldTableItemDelegate::drawText(QPainter* painter, const QStyleOptionViewItem& option,
                                         const QString& text, const QColor& color) const
{
    const int room = option.rect.right() - option.rect.left() - 3;
    painter->setFont(option.font);
    painter->setPen(color);
    painter->drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine,
                      fitting(text, option.fontMetrics, room));
    drawFocus(painter, option, option.rect);
}

bool DvMFieldTableItemDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_editor)
        return false;
    QLineEdit* const line = lineOf(*m_editor);
    if (event->type() == QEvent::KeyPress && watched == line &&
        finishOnKey(static_cast<QKeyEvent*>(event)->key()))
        return true;
    // Of a slider's parts only the whole is an editor.
    if (watched != m_editor)
        return false;
    // The base drops a text that the validator does not accept.
    const bool isLeft = event->type() == QEvent::FocusOut && QApplication::focusWidget() != line;
    if (isLeft && watched == line && !line->hasAcceptableInput())
        emit commitData(line);
    return QItemDelegate::eventFilter(watched, event);
}

bool DvMFieldTableItemDelegate::finishOnKey(int key)
{
    // At once and whatever the text: the base does it later, and keeps a line open whose text its
    // validator does not accept.
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finish(SubmitModelCache);
        return true;
    case Qt::Key_Tab:
        finish(EditNextItem);
        return true;
    case Qt::Key_Backtab:
        // From a slider's line it leads to the thumb.
        if (!qobject_cast<QLineEdit*>(m_editor.data()))
            return false;
        finish(EditPreviousItem);
        return true;
    default:
        return false;
    }
}

void DvMFieldTableItemDelegate::finish(EndEditHint hint)
{
    emit commitData(m_editor);
    if (m_editor)
        emit closeEditor(m_editor, hint);
}

void DvMFieldTableItemDelegate::finishOpenEditor()
{
    if (m_editor)
        finish(NoHint);
}

void DvMFieldTableItemDelegate::discardOpenEditor()
{
    if (!m_editor)
        return;
    // Closing takes the focus, with which a changed line would commit.
    if (auto* const slider = qobject_cast<DvSlider*>(m_editor.data())) {
        slider->cancelDrag();
        slider->revertPendingEdit();
    } else {
        lineOf(*m_editor)->setModified(false);
    }
    emit closeEditor(m_editor, RevertModelCache);
}

void DvMFieldTableItemDelegate::refreshOpenEditor()
{
    if (m_editor && m_index.isValid() && !isChangedByUser(*m_editor))
        setEditorData(m_editor, m_index);
}

void DvMFieldTableItemDelegate::s_focusChanged(QWidget*, QWidget* now)
{
    // The base notices only that the frame of a slider loses the focus, and the frame never has it.
    auto* const slider = qobject_cast<DvSlider*>(m_editor.data());
    if (slider && now && now != slider && !slider->isAncestorOf(now))
        finish(NoHint);
}
