#include "preview_window.h"

#include "files.h"
#include "printer_models.h"
#include "printout_files.h"
#include "printout_view.h"
#include "tx_configuration.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array usualColumns = {32, 40, 42, 48};

// A model has one, a printer of the configuration its name alone.
QString titleOf(const QString &printer)
{
    const PrinterModel *const model = findPrinterModel(printer);
    return model ? QString(model->title) : printer;
}

} // namespace

PreviewWindow::PreviewWindow(const QString &document, const QString &configuration,
                             const PreviewChoice &choice)
    : m_configuration(configuration)
    , m_choice(choice)
    , m_view(new PrintoutView)
    , m_remarks(new QLabel)
    , m_status(new QLabel)
{
    m_remarks->setObjectName(u"remarks"_s);
    m_remarks->setWordWrap(true);
    m_remarks->setTextFormat(Qt::PlainText);
    m_remarks->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_remarks->setMargin(6);
    m_remarks->setBackgroundRole(QPalette::ToolTipBase);
    m_remarks->setForegroundRole(QPalette::ToolTipText);
    m_remarks->setAutoFillBackground(true);

    auto *rows = new QVBoxLayout;
    rows->setContentsMargins({});
    rows->setSpacing(0);
    rows->addWidget(m_remarks);
    rows->addWidget(m_view);
    setCentralWidget(new QWidget);
    centralWidget()->setLayout(rows);
    statusBar()->addWidget(m_status);
    createActions();
    createChoices();
    connect(m_view, &PrintoutView::zoomChanged, this, &PreviewWindow::updateStatus);
    connect(&m_follower, &FileFollower::changed, this, &PreviewWindow::refresh);
    open(document);
}

void PreviewWindow::createActions()
{
    QMenu *fileMenu = menuBar()->addMenu(tr("&File"));
    fileMenu->addAction(tr("&Open…"), QKeySequence::Open, this, &PreviewWindow::askForDocument);
    fileMenu->addAction(tr("Save &As…"), QKeySequence(Qt::CTRL | Qt::Key_S), this,
                        &PreviewWindow::askForFile);
    fileMenu->addSeparator();
    fileMenu->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &PreviewWindow::close);

    QMenu *viewMenu = menuBar()->addMenu(tr("&View"));
    viewMenu->addAction(tr("Zoom &In"), QKeySequence::ZoomIn, m_view, &PrintoutView::zoomIn);
    viewMenu->addAction(tr("Zoom &Out"), QKeySequence::ZoomOut, m_view, &PrintoutView::zoomOut);
    viewMenu->addAction(tr("&Dot by Dot"), QKeySequence(Qt::CTRL | Qt::Key_0), m_view,
                        &PrintoutView::zoomToDots);
    viewMenu->addAction(tr("Fit &Width"), QKeySequence(Qt::CTRL | Qt::Key_9), m_view,
                        &PrintoutView::fitWidth);
}

void PreviewWindow::createChoices()
{
    QToolBar *bar = addToolBar(tr("Choices"));
    bar->setMovable(false);
    const auto addChoice = [bar](const QString &label, const QString &name) {
        auto *choice = new QComboBox;
        choice->setObjectName(name);
        auto *choiceLabel = new QLabel(label);
        choiceLabel->setBuddy(choice);
        choiceLabel->setMargin(4);
        bar->addWidget(choiceLabel);
        bar->addWidget(choice);
        return choice;
    };

    const TXConfiguration configuration(m_configuration, u"cfg"_s);
    QComboBox *printers = addChoice(tr("P&rinter:"), u"printer"_s);
    printers->addItem(tr("as configured"));
    for (const QString &printer : DocumentPreviewer::printers(configuration))
        printers->addItem(titleOf(printer), printer);
    printers->setCurrentIndex(std::max(0, printers->findData(m_choice.printer)));
    connect(printers, &QComboBox::currentIndexChanged, this, [this, printers] {
        m_choice.printer = printers->currentData().toString();
        refresh();
    });

    QComboBox *languages = addChoice(tr("&Language:"), u"language"_s);
    languages->addItem(tr("as configured"));
    for (const QString &language : DocumentPreviewer::languages(configuration))
        languages->addItem(QLocale(language).nativeLanguageName(), language);
    languages->setCurrentIndex(std::max(0, languages->findData(m_choice.language.value_or(QString()))));
    connect(languages, &QComboBox::currentIndexChanged, this, [this, languages] {
        const QVariant language = languages->currentData();
        m_choice.language = language.isValid() ? std::optional(language.toString()) : std::nullopt;
        refresh();
    });

    QComboBox *papers = addChoice(tr("&Paper:"), u"paper"_s);
    papers->addItem(tr("as configured"), 0);
    for (const int columns : usualColumns)
        papers->addItem(tr("%1 columns").arg(columns), columns);
    if (papers->findData(m_choice.columns) < 0)
        papers->addItem(tr("%1 columns").arg(m_choice.columns), m_choice.columns);
    papers->setCurrentIndex(papers->findData(m_choice.columns));
    connect(papers, &QComboBox::currentIndexChanged, this, [this, papers] {
        m_choice.columns = papers->currentData().toInt();
        refresh();
    });
}

void PreviewWindow::open(const QString &document)
{
    m_document = document;
    setWindowTitle(QFileInfo(document).fileName());
    setWindowFilePath(document);
    m_follower.follow({m_document, m_configuration});
    refresh();
}

void PreviewWindow::refresh()
{
    QStringList remarks;
    if (const OpenedFile document = openForReading(m_document); document.error.isEmpty()) {
        const TXConfiguration configuration(m_configuration, u"cfg"_s);
        m_preview = m_previewer.preview(*document.file, configuration, m_choice);
        remarks = m_preview.remarks();
        m_view->setPrintout(PrintoutPainter(m_preview.printout, remarks));
    } else {
        remarks << tr("%1 cannot be read: %2").arg(m_document, document.error);
    }
    if (!QFileInfo::exists(m_configuration))
        remarks << tr("There is no configuration %1.").arg(m_configuration);
    m_remarks->setText(remarks.join(u'\n'));
    m_remarks->setVisible(!remarks.isEmpty());
    updateStatus();
}

void PreviewWindow::updateStatus()
{
    QStringList parts{tr("Columns: %1").arg(m_preview.printout.columns),
                      tr("Lines: %1").arg(m_preview.printout.lineCount),
                      tr("Zoom: %1 %").arg(qRound(100 * m_view->zoom()))};
    if (m_preview.printout.copies > 1)
        parts.insert(2, tr("to be printed twice"));
    m_status->setText(parts.join(u"  ·  "_s));
}

void PreviewWindow::askForDocument()
{
    const QString document = QFileDialog::getOpenFileName(this, tr("Open a Document"), m_document,
                                                          tr("Documents (*.xml *.tvx);;All files (*)"));
    if (!document.isEmpty())
        open(document);
}

void PreviewWindow::askForFile()
{
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Save the Printout"), QFileInfo(m_document).completeBaseName() + ".pdf"_L1,
        tr("PDF (*.pdf);;Picture (*.png);;Drawing (*.svg);;Text (*.txt)"));
    if (!file.isEmpty())
        saveAs(file);
}

bool PreviewWindow::saveAs(const QString &file)
{
    const std::optional<PrintoutFormat> format = formatOfFile(file);
    QString error = tr("the name has to end in .png, .svg, .pdf or .txt");
    if (format && m_view->painter()) {
        const PrintoutFile made = printoutFile(*m_view->painter(), *format);
        error = made.error.isEmpty() ? writeFile(file, made.bytes) : made.error;
    }
    if (error.isEmpty()) {
        statusBar()->showMessage(tr("Saved."), 4000);
        return true;
    }
    auto *message = new QMessageBox(QMessageBox::Warning, QString(),
                                    tr("Cannot write %1: %2").arg(file, error), QMessageBox::Ok, this);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
    return false;
}
