#include "lib/HostFieldList.h"

#include "lib/HostCopyPath.h"
#include "lib/HostServices.h"
#include "lib/HostText.h"

#include <Inventor/nodes/SoNode.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace {

/** In average characters: most names and nearly all types fit. */
constexpr int NameWidth = 18;
constexpr int TypeWidth = 11;
/** Of the list, when nothing else says how large it is to be. */
constexpr int PreferredWidth = 60;
constexpr int PreferredRows = 16;

int averageWidth(const QWidget& widget, int characters)
{
    return widget.fontMetrics().averageCharWidth() * characters;
}

} // namespace

HostFieldList::HostFieldList(HostServices& services, QWidget* parent)
    : QWidget(parent), m_services(services), m_filter(new QLineEdit), m_view(new QTableView)
{
    setObjectName(QStringLiteral("fieldList"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);
    buildFilter();
    buildView();
    connect(&m_model, SIGNAL(modelReset()), SLOT(s_modelReset()));
    connect(&m_model, SIGNAL(nodeGone()), SLOT(updateHint()));
    connect(&m_model, SIGNAL(nodeGone()), SIGNAL(nodeGone()));
    connect(&services, SIGNAL(selectedFieldChanged(SoField*)),
            SLOT(s_selectedFieldChanged(SoField*)));
    updateHint();
}

HostFieldList::~HostFieldList()
{
    // The model goes before the view; and the services may have gone by now.
    m_view->selectionModel()->disconnect(this);
}

void HostFieldList::buildFilter()
{
    m_filter->setObjectName(QStringLiteral("fieldFilter"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setToolTip(tr("Lists only the fields with this in their name, type or value"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    connect(m_filter, SIGNAL(textChanged(QString)), SLOT(s_filterChanged(QString)));
    auto* find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, SIGNAL(activated()), m_filter, SLOT(setFocus()));
    connect(find, SIGNAL(activated()), m_filter, SLOT(selectAll()));
}

void HostFieldList::buildView()
{
    m_view->setObjectName(QStringLiteral("fieldView"));
    m_view->setAccessibleName(tr("Fields"));
    m_view->setModel(&m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setTabKeyNavigation(false);
    m_view->installEventFilter(this);
    HostCopyPath::addTo(*m_view, QStringLiteral("actionCopyFieldPath"), &m_services,
                        SLOT(copyFieldPath()));
    buildColumns();
    connect(m_view->selectionModel(), SIGNAL(selectionChanged(QItemSelection, QItemSelection)),
            SLOT(s_selectionChanged()));
    // Some styles activate with a single click, and then not with a double one.
    connect(m_view, SIGNAL(activated(QModelIndex)), SLOT(s_chosen(QModelIndex)));
    connect(m_view, SIGNAL(doubleClicked(QModelIndex)), SLOT(s_chosen(QModelIndex)));
}

/** None asks for its contents' widths: that would read every value, and lose what the user set. */
void HostFieldList::buildColumns()
{
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    QHeaderView& header = *m_view->horizontalHeader();
    header.setHighlightSections(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setMinimumSectionSize(fontMetrics().height() + 4);
    header.resizeSection(HostFieldModel::NameColumn, averageWidth(*this, NameWidth));
    header.resizeSection(HostFieldModel::TypeColumn, averageWidth(*this, TypeWidth));
    header.setSectionResizeMode(HostFieldModel::ValueColumn, QHeaderView::Stretch);
    for (int mark = HostFieldModel::DefaultColumn; mark < HostFieldModel::ColumnCount; ++mark) {
        header.setSectionResizeMode(mark, QHeaderView::Fixed);
        header.resizeSection(mark, header.minimumSectionSize());
    }
}

QSize HostFieldList::sizeHint() const
{
    const int row = m_view->verticalHeader()->defaultSectionSize();
    return {averageWidth(*this, PreferredWidth), row * PreferredRows};
}

void HostFieldList::setNode(SoNode* node)
{
    m_model.setNode(node);
    updateHint();
}

void HostFieldList::updateHint()
{
    const SoNode* const node = m_model.node();
    m_filter->setPlaceholderText(node ? tr("Filter the fields of %1").arg(HostText::title(node))
                                      : tr("No node is selected"));
}

void HostFieldList::s_filterChanged(const QString& text)
{
    m_model.setFilter(text);
}

void HostFieldList::s_selectionChanged()
{
    if (m_following)
        return;
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    m_services.selectField(rows.isEmpty() ? nullptr : m_model.field(rows.constFirst().row()));
}

void HostFieldList::s_chosen(const QModelIndex& index)
{
    m_view->selectRow(index.row());
    // Already selected by the first click: that would make the editor anew under the second.
    if (m_services.selectedField() != m_model.field(index.row()))
        m_services.selectField(m_model.field(index.row()));
}

void HostFieldList::s_modelReset()
{
    showSelected(m_services.selectedField());
}

void HostFieldList::s_selectedFieldChanged(SoField* field)
{
    showSelected(field);
}

/** The field need not live any more: it is only looked up. */
void HostFieldList::showSelected(const SoField* field)
{
    const QScopedValueRollback<bool> following(m_following, true);
    const int row = field ? m_model.row(field) : -1;
    if (row < 0)
        m_view->selectionModel()->clear();
    else
        m_view->selectRow(row);
}

bool HostFieldList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if ((key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
            keyPressed(watched, key.key()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

/** Answers whether the key has been used up. */
bool HostFieldList::keyPressed(const QObject* watched, int key)
{
    if (key == Qt::Key_Escape && !m_filter->text().isEmpty()) {
        m_filter->clear();
        return true;
    }
    // A table takes these for the first and the last column.
    if (watched == m_view && (key == Qt::Key_Home || key == Qt::Key_End) &&
        m_model.rowCount() > 0) {
        m_view->selectRow(key == Qt::Key_Home ? 0 : m_model.rowCount() - 1);
        return true;
    }
    const bool goesOn = key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched != m_filter || !goesOn)
        return false;
    enterView();
    return true;
}

void HostFieldList::enterView()
{
    if (m_model.rowCount() == 0)
        return;
    m_view->setFocus(Qt::TabFocusReason);
    const QModelIndex current = m_view->currentIndex();
    s_chosen(current.isValid() ? current : m_model.index(0, 0));
}
