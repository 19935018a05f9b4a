#include "spreadsheet/embedded/ui/SheetWindow.h"

#include "platform/ShownText.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/SheetCommands.h"
#include "spreadsheet/embedded/ui/ColumnWidths.h"
#include "spreadsheet/embedded/ui/EditLine.h"
#include "spreadsheet/embedded/ui/SheetColours.h"
#include "spreadsheet/embedded/ui/SheetFooter.h"
#include "spreadsheet/embedded/ui/SheetMenu.h"
#include "spreadsheet/embedded/ui/SheetModel.h"
#include "spreadsheet/embedded/ui/SheetStatus.h"
#include "spreadsheet/embedded/ui/SheetTable.h"
#include "spreadsheet/embedded/ui/SheetTabs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zvonika {

namespace {

const QString windowName = QStringLiteral("Tabulka Zvoniky");

QWidget* makeEmptyPage() {
    auto* page = new QLabel(QStringLiteral("Žádný sešit není otevřen."));
    page->setObjectName(QStringLiteral("prazdnaStranka"));
    page->setAccessibleName(page->text());
    page->setFocusPolicy(Qt::StrongFocus);
    page->setAlignment(Qt::AlignCenter);
    QPalette palette = page->palette();
    palette.setColor(QPalette::Window, sheet::emptyPage);
    palette.setColor(QPalette::WindowText, sheet::ink);
    page->setPalette(palette);
    page->setAutoFillBackground(true);
    return page;
}

QVBoxLayout* column(QWidget* owner) {
    auto* layout = new QVBoxLayout(owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

SheetWindow::SheetWindow(SheetCommands& commands, const SheetColumns& columns)
    : commands_(commands), model_(new SheetModel(commands, columns, this)), table_(new SheetTable),
      menu_(new SheetMenu(commands, table_)), line_(new EditLine), footer_(new SheetFooter(table_)),
      widths_(new ColumnWidths(commands, table_->horizontalHeader())) {
    setObjectName(QStringLiteral("oknoTabulky"));
    setAccessibleName(windowName);
    table_->setModel(model_);
    setMenuWidget(makeTop());
    setCentralWidget(makePages());
    setMinimumSize(320, 150);
    resize(1180, 420);
    table_->setFocus();
    wireUser();
    setDocument(nullptr);
}

// The parts go after this object's own and would still tell it of their going.
SheetWindow::~SheetWindow() {
    setDocument(nullptr);
    table_->disconnect(this);
    line_->disconnect(this);
    footer_->tabs()->disconnect(this);
}

QWidget* SheetWindow::makeTop() {
    auto* top = new QWidget;
    auto* row = new QHBoxLayout(top);
    row->setContentsMargins(0, 1, 0, 1);
    row->setSpacing(4);
    row->addWidget(menu_, 0, Qt::AlignVCenter);
    row->addWidget(line_, 1);
    row->addStretch(0); // keeps the menus at the left when there is no cell to edit
    return top;
}

QWidget* SheetWindow::makePages() {
    auto* sheetPage = new QWidget;
    auto* layout = column(sheetPage);
    layout->addWidget(table_, 1);
    layout->addWidget(footer_);
    pages_ = new QStackedWidget;
    pages_->addWidget(sheetPage);
    pages_->addWidget(makeEmptyPage());
    return pages_;
}

void SheetWindow::wireUser() {
    connect(table_, &SheetTable::userSelected, this,
            [this](const Selection& selection) { commands_.select(selection.range, selection.active); });
    connect(line_, &EditLine::committed, this,
            [this](CellPosition cell, const QString& text) { commands_.type(cell, text); });
    connect(line_, &EditLine::entered, this, [this] {
        table_->setFocus();
        table_->step(1, 0);
    });
    connect(line_, &EditLine::left, this, [this] {
        table_->setFocus();
        showSelection();
    });
    connect(menu_, &SheetMenu::aboutToAct, this, &SheetWindow::commitPending);
    connect(footer_->tabs(), &QTabBar::currentChanged, this, [this](int tab) {
        commitPending(); // still on the sheet where it was typed
        commands_.selectSheet(sheetOfTab(tab));
    });
    footer_->tabs()->setRename(
        [this](int tab, const QString& name) { return renameSheet(sheetOfTab(tab), name); });
    connect(new QShortcut(QKeySequence(Qt::Key_F6), this), &QShortcut::activated, this,
            &SheetWindow::f6Pressed);
    wirePageKeys();
}

void SheetWindow::wirePageKeys() {
    wirePageKey(true, Qt::Key_PageDown, Qt::ALT | Qt::Key_PageDown);
    wirePageKey(false, Qt::Key_PageUp, Qt::ALT | Qt::Key_PageUp);
}

void SheetWindow::wirePageKey(bool down, const QKeySequence& offered, const QKeySequence& own) {
    connect(new QShortcut(offered, this), &QShortcut::activated, this, [this, down] {
        if (!takePageKey || !takePageKey(down)) table_->page(down);
    });
    connect(new QShortcut(own, this), &QShortcut::activated, this, [this, down] { table_->page(down); });
}

void SheetWindow::setVisible(bool visible) {
    QMainWindow::setVisible(visible);
}

void SheetWindow::raise() {
    isMinimized() ? showNormal() : show();
    QMainWindow::raise();
    activateWindow();
    takeFocus();
}

// What is hidden cannot have the keyboard, and without it the way back by F6 would be lost.
void SheetWindow::takeFocus() {
    QWidget* place = document_ ? static_cast<QWidget*>(table_) : pages_->currentWidget();
    place->setFocus();
}

void SheetWindow::setDocument(Document* document) {
    if (document_) document_->disconnect(this);
    document_ = document;
    shownSheet_ = document ? document->cursor().activeSheet() : 0;
    line_->clear();
    model_->setDocument(document);
    menu_->setDocument(document);
    widths_->setDocument(document);
    line_->setVisible(document != nullptr);
    pages_->setCurrentIndex(document ? 0 : 1);
    showTitle();
    if (!document) return;
    wireDocument();
    showSheets();
    showSelection();
}

bool SheetWindow::isTyping() const {
    return table_->isTyping() || line_->isTyping();
}

// A refusal shows a box, and in the meantime the program may ask for the same.
void SheetWindow::commitPending() {
    if (committing_) return;
    const QScopedValueRollback guard(committing_, true);
    table_->commitPending();
    line_->commitPending();
}

void SheetWindow::wireDocument() {
    connect(document_, &Document::selectionChanged, this, [this] {
        followDue_ = true;
        showSoon();
    });
    connect(document_, &Document::cellsChanged, this, &SheetWindow::showSoon);
    connect(document_, &Document::journalTroubleChanged, this, &SheetWindow::showSoon);
    connect(document_, &Document::sheetsChanged, this, &SheetWindow::showSheets);
    connect(document_, &Document::nameChanged, this, &SheetWindow::showTitle);
    connect(document_, &Document::modifiedChanged, this, &SheetWindow::showTitle);
}

void SheetWindow::showTitle() {
    const QString name =
        document_ ? shownTitle(document_->file().name()) + QStringLiteral("[*] – ") : QString();
    setWindowTitle(name + windowName);
    setWindowModified(document_ && document_->file().isModified());
}

int SheetWindow::sheetOfTab(int tab) const {
    const std::vector<int> sheets = document_->cells().visibleSheets();
    return tab >= 0 && tab < static_cast<int>(sheets.size()) ? sheets[static_cast<std::size_t>(tab)]
                                                             : document_->cursor().activeSheet();
}

void SheetWindow::showSheets() {
    const std::vector<int> sheets = document_->cells().visibleSheets();
    QStringList names;
    for (const int sheet : sheets)
        names.append(document_->cells().sheetName(sheet));
    const auto active = std::ranges::find(sheets, document_->cursor().activeSheet());
    footer_->tabs()->show(names, static_cast<int>(active - sheets.begin()));
    if (shownSheet_ == document_->cursor().activeSheet()) return;
    shownSheet_ = document_->cursor().activeSheet();
    model_->refresh();
    widths_->refresh();
    showSelection();
}

void SheetWindow::showSelection() {
    followDue_ = true;
    showDue();
}

/// The program goes over thousands of cells in a row: what comes before the next painting is shown once.
void SheetWindow::showSoon() {
    if (std::exchange(showDue_, true)) return;
    QMetaObject::invokeMethod(this, &SheetWindow::showDue, Qt::QueuedConnection);
    qApp->installEventFilter(this);
}

// The next key may be there already; it is meant for the cell where the cursor is by now.
bool SheetWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::InputMethod ||
        type == QEvent::MouseButtonPress)
        showDue();
    return QMainWindow::eventFilter(watched, event);
}

void SheetWindow::showDue() {
    if (std::exchange(showDue_, false)) qApp->removeEventFilter(this);
    if (!document_) return;
    if (std::exchange(followDue_, false)) table_->follow(document_->cursor().selection());
    const CellPosition cell = document_->cursor().selection().active;
    line_->showCell(cell, document_->cells().editText(document_->cursor().activeSheet(), cell));
    const QVariant label = model_->headerData(cell.column - 1, Qt::Horizontal, SheetModel::LabelRole);
    footer_->setStatus(statusSentences(*document_, label.toString()));
}

bool SheetWindow::renameSheet(int sheet, const QString& name) {
    commands_.renameSheet(sheet, name);
    return document_ && document_->cells().sheetName(sheet) == name;
}

// What is closed is the document; the window goes or stays as the application decides.
void SheetWindow::closeEvent(QCloseEvent* event) {
    if (!document_) {
        event->accept();
        return;
    }
    event->ignore();
    commitPending();
    commands_.files().close();
}

} // namespace zvonika
