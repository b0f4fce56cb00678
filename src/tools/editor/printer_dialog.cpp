#include "printer_dialog.h"

#include "printer_models.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

PrinterDialog::PrinterDialog(const QStringList &taken, QWidget *parent)
    : QDialog(parent)
    , m_taken(taken)
    , m_name(new QLineEdit)
    , m_model(new QComboBox)
    , m_output(new QLineEdit(u"/dev/usb/lp0"_s))
{
    setWindowTitle(tr("Add a Printer"));
    m_name->setObjectName(u"name"_s);
    m_name->setPlaceholderText(tr("such as till or kitchen"));
    m_model->setObjectName(u"model"_s);
    for (const PrinterModel &model : printerModels)
        m_model->addItem(model.title, QString(model.name));
    m_output->setObjectName(u"output"_s);

    auto *buttons = new QDialogButtonBox;
    m_add = buttons->addButton(tr("&Add"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &PrinterDialog::updateButtons);

    auto *form = new QFormLayout(this);
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&Model:"), m_model);
    form->addRow(tr("&Output:"), m_output);
    form->addRow(buttons);
    updateButtons();
}

QString PrinterDialog::name() const
{
    return m_name->text().trimmed();
}

QString PrinterDialog::model() const
{
    return m_model->currentData().toString();
}

QString PrinterDialog::output() const
{
    return m_output->text().trimmed();
}

void PrinterDialog::updateButtons()
{
    m_add->setEnabled(!name().isEmpty() && !name().contains(u'.') && !m_taken.contains(name()));
}
