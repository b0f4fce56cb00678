#include "preview_pane.h"

#include "configuration_document.h"
#include "known_settings.h"
#include "printer_settings.h"
#include "printout_view.h"
#include "tx_configuration.h"

#include <QBuffer>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

// The examples of a profile's documents, the usual one first.
struct ExamplesOfProfile
{
    QLatin1StringView section;
    std::array<QLatin1StringView, 2> documents;
};

constexpr ExamplesOfProfile examples[] = {
    {"receiptdoc"_L1, {"full-receipt"_L1, "abstract-receipt"_L1}},
    {"doc"_L1, {"partial-order"_L1, "abstract-order"_L1}},
    {"prefiscaldoc"_L1, {"full-order"_L1, {}}},
    {"fiscaldoc"_L1, {"full-fiscal"_L1, "abstract-fiscal"_L1}},
    {"invoicedoc"_L1, {"full-invoice"_L1, "abstract-invoice"_L1}},
    {"deliverydoc"_L1, {"delivery-order"_L1, {}}},
    {"reportdoc"_L1, {"report"_L1, "statement-of-account"_L1}},
    {"solddoc"_L1, {"sold-items"_L1, {}}},
};

QString ownDocumentKey(const QString &profile)
{
    return "preview/documents/"_L1 + profile;
}

// Another value of a setting, which prints otherwise if any does.
QString otherValue(const QString &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (isNumber)
        return QString::number(number > 0 ? number - 1 : number + 1);
    return value == "true"_L1 ? u"false"_s : u"true"_s;
}

// The lines of a printout that are not in another one: between what both begin and end with, those that the
// other lacks or, where it only has fewer of the kind, all.
std::vector<bool> linesOnlyIn(const std::vector<PrintedLine> &lines, const std::vector<PrintedLine> &others)
{
    const auto [begin, otherBegin] = std::ranges::mismatch(lines, others);
    auto end = lines.end();
    auto otherEnd = others.end();
    while (end != begin && otherEnd != otherBegin && *std::prev(end) == *std::prev(otherEnd)) {
        --end;
        --otherEnd;
    }
    const auto isNew = [otherBegin = otherBegin, otherEnd](const PrintedLine &line) {
        return std::find(otherBegin, otherEnd, line) == otherEnd;
    };
    const bool hasNew = std::any_of(begin, end, isNew);
    std::vector<bool> found(lines.size());
    for (auto line = begin; line != end; ++line)
        found[static_cast<std::size_t>(line - lines.begin())] = !hasNew || isNew(*line);
    return found;
}

} // namespace

PreviewPane::PreviewPane(const ConfigurationDocument &document)
    : QDockWidget(tr("Preview"))
    , m_document(document)
    , m_documents(new QComboBox)
    , m_remarks(new QLabel)
    , m_view(new PrintoutView)
{
    setObjectName(u"preview"_s);
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    toggleViewAction()->setText(tr("&Preview"));
    m_documents->setObjectName(u"documents"_s);
    m_documents->setAccessibleName(tr("Document"));
    m_documents->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_remarks->setObjectName(u"remarks"_s);
    m_remarks->setTextFormat(Qt::PlainText);
    m_remarks->setWordWrap(true);
    auto *open = new QPushButton(tr("O&pen…"));

    auto *row = new QHBoxLayout;
    row->addWidget(m_documents);
    row->addWidget(open);
    auto *rows = new QVBoxLayout;
    rows->addLayout(row);
    rows->addWidget(m_remarks);
    rows->addWidget(m_view, 1);
    auto *content = new QWidget;
    content->setLayout(rows);
    setWidget(content);

    connect(m_documents, &QComboBox::currentIndexChanged, this, &PreviewPane::refresh);
    connect(open, &QPushButton::clicked, this, &PreviewPane::askForDocument);
    connect(&document, &ConfigurationDocument::changed, this, &PreviewPane::refresh);
}

void PreviewPane::followKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    refresh();
}

// Fills the choice of documents when the key is of another profile than before.
void PreviewPane::followProfile()
{
    const QString section = m_key.section(u'.', 1, 1);
    const auto *wanted = std::ranges::find(examples, section, &ExamplesOfProfile::section);
    if (wanted == std::end(examples)) {
        if (!m_profile.isEmpty())
            return; // of none: what is shown stays
        wanted = std::begin(examples);
    }
    if (m_profile == wanted->section)
        return;
    m_profile = wanted->section;

    const QSignalBlocker blocker(m_documents);
    m_documents->clear();
    for (const QLatin1StringView document : wanted->documents)
        if (!document.isEmpty())
            m_documents->addItem(document + ".xml"_L1, ":/documents/"_L1 + document + ".xml"_L1);
    if (const QString own = QSettings().value(ownDocumentKey(m_profile)).toString(); QFileInfo::exists(own)) {
        m_documents->addItem(QFileInfo(own).fileName(), own);
        m_documents->setCurrentIndex(m_documents->count() - 1);
    }
}

void PreviewPane::chooseDocument(const QString &file)
{
    QSettings().setValue(ownDocumentKey(m_profile), file);
    m_documents->addItem(QFileInfo(file).fileName(), file);
    m_documents->setCurrentIndex(m_documents->count() - 1);
}

void PreviewPane::askForDocument()
{
    const QString file = QFileDialog::getOpenFileName(this, tr("Open a Document"), QString(),
                                                      tr("Documents (*.xml *.tvx);;All files (*)"));
    if (!file.isEmpty())
        chooseDocument(file);
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    refresh();
}

void PreviewPane::refresh()
{
    if (!isVisible())
        return;
    followProfile();
    const QString name = m_documents->currentData().toString();
    QFile file(name);
    QStringList remarks;
    if (!file.open(QIODevice::ReadOnly)) {
        remarks << tr("%1 cannot be read: %2").arg(name, file.errorString());
    } else if (!PrintoutPainter::gridFont(*this)) {
        remarks << tr("No font of fixed width is installed: the package fonts-dejavu-core has one.");
    } else {
        QByteArray document = file.readAll();
        const Preview preview = printed(document, m_document.configuration());
        remarks = preview.remarks();
        m_view->setPrintout(
            PrintoutPainter(preview.printout, remarks, touchedLines(preview.printout, document)));
    }
    m_remarks->setText(remarks.join(u'\n'));
    m_remarks->setVisible(!remarks.isEmpty());
}

// On the printer whose section is shown, else on the first.
Preview PreviewPane::printed(QByteArray document, const TXConfiguration &configuration)
{
    PreviewChoice choice;
    if (m_key.startsWith(printersKey + u'.'))
        choice.printer = m_key.section(u'.', 2, 2);
    QBuffer device(&document);
    return m_previewer.preview(device, configuration, choice);
}

// Found by trying: the document is printed with another value of the setting.
std::vector<bool> PreviewPane::touchedLines(const Printout &printout, const QByteArray &document)
{
    const KnownSetting *const setting = findSetting(m_key);
    if (!setting || (setting->kind != SettingKind::number && setting->kind != SettingKind::onOff))
        return {}; // of the others no other value is known to be one
    QString value = m_document.configuration().getStrValue(m_key);
    if (value.isEmpty())
        value = valueWhenMissing(m_key, m_document.configuration());
    const libconfig::TextChange change = m_document.text().set(m_key, otherValue(value));
    if (!change)
        return {};
    TXConfiguration configuration{{}, {}};
    configuration.readText(change.appliedTo(m_document.text().text()), m_document.text().kind());
    return linesOnlyIn(printout.lines, printed(document, configuration).printout.lines);
}
