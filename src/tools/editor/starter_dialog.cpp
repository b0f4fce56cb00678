#include "starter_dialog.h"

#include "configuration_text.h"
#include "document_previewer.h"
#include "printer_models.h"
#include "starter_configuration.h"
#include "tx_configuration.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

StarterDialog::StarterDialog(const QString &missingFile, QWidget *parent)
    : QDialog(parent)
    , m_model(new QComboBox)
    , m_output(new QLineEdit(u"/dev/usb/lp0"_s))
    , m_width(new QComboBox)
    , m_language(new QComboBox)
{
    setWindowTitle(tr("New Configuration"));
    auto *introduction = new QLabel(
        (missingFile.isEmpty() ? QString() : tr("There is no configuration %1 yet.").arg(missingFile) + u' ')
        + tr("This makes one to start from: every setting of every document, with values for your paper."));
    introduction->setTextFormat(Qt::PlainText);
    introduction->setWordWrap(true);
    introduction->setMinimumWidth(380);

    m_model->setObjectName(u"model"_s);
    m_model->addItem(tr("none, or one of plain text"));
    for (const PrinterModel &model : printerModels)
        if (!model.isPlainText())
            m_model->addItem(model.title, QString(model.name));
    m_output->setObjectName(u"output"_s);
    m_width->setObjectName(u"width"_s);
    m_language->setObjectName(u"language"_s);
    m_language->addItem(tr("that of the person at the machine"), u"/"_s);
    TXConfiguration starter{{}, {}}; // which names the folder of the translations
    starter.readText(starterConfiguration(starterPaperWidths().constFirst()), u"cfg"_s);
    for (const QString &language : DocumentPreviewer::languages(starter))
        m_language->addItem(QLocale(language).nativeLanguageName(),
                            language == "en"_L1 ? QString() : "/tavolux_"_L1 + language);

    auto *buttons = new QDialogButtonBox;
    m_create = buttons->addButton(tr("&Create"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *form = new QFormLayout(this);
    form->addRow(introduction);
    form->addRow(tr("Receipt &printer:"), m_model);
    form->addRow(tr("&Output:"), m_output);
    form->addRow(tr("Characters in a &line:"), m_width);
    form->addRow(tr("Language of the &labels:"), m_language);
    form->addRow(buttons);
    connect(m_model, &QComboBox::currentIndexChanged, this, &StarterDialog::followModel);
    connect(m_output, &QLineEdit::textChanged, this, &StarterDialog::updateButtons);
    followModel();
    m_width->setCurrentIndex(static_cast<int>(starterPaperWidths().indexOf(42))); // paper of 80 mm
}

// What fits on its paper; of plain text nobody knows the paper.
void StarterDialog::followModel()
{
    const PrinterModel *const model = findPrinterModel(m_model->currentData().toString());
    const QString chosen = m_width->currentText();
    m_width->clear();
    for (const int width : starterPaperWidths())
        if (!model || width <= std::max(model->columns, starterPaperWidth(model->columns)))
            m_width->addItem(QString::number(width));
    m_width->setCurrentIndex(model ? m_width->count() - 1 : m_width->findText(chosen));
    m_output->setEnabled(model);
    updateButtons();
}

void StarterDialog::updateButtons()
{
    const QString output = m_output->text().trimmed();
    const bool fits = !output.isEmpty() && std::ranges::none_of(output, [](QChar c) {
        return c.unicode() > 0xFF || c < u' ' || c == u';' || c == u'"';
    });
    m_create->setEnabled(fits || !m_output->isEnabled());
}

QByteArray StarterDialog::configuration() const
{
    std::optional<StarterPrinter> printer;
    if (const PrinterModel *model = findPrinterModel(m_model->currentData().toString()))
        printer = {model->name, m_output->text().trimmed().toLatin1()};
    QByteArray bytes = starterConfiguration(m_width->currentText().toInt(), printer);
    const QString file = m_language->currentData().toString();
    const auto set = [&bytes](const QString &name, const QString &value) {
        bytes =
            libconfig::ConfigurationText(bytes).set("tavolux.language."_L1 + name, value).appliedTo(bytes);
    };
    set(u"file"_s, file);
    if (file.isEmpty()) // English labels need no translation
        set(u"basedir"_s, QString());
    return bytes;
}
