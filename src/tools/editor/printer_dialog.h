#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;
class QLineEdit;
class QPushButton;

/* Asks for a printer to add: its name, its model and what it prints. */
class PrinterDialog : public QDialog
{
    Q_OBJECT

public:
    /* The names that are taken cannot be chosen. */
    PrinterDialog(const QStringList &taken, QWidget *parent);

    QString name() const;
    QString model() const;
    QString output() const;

private:
    void updateButtons();

    QStringList m_taken;
    // Owned by the dialog.
    QLineEdit *m_name;
    QComboBox *m_model;
    QLineEdit *m_output;
    QPushButton *m_add;
};
