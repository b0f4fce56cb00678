#include "value_delegate.h"

#include "dialogs.h"
#include "known_settings.h"
#include "settings_model.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

// Properties of a field: what was in it before a person came, whether the person did anything in it, and why
// what is in it now cannot be taken.
constexpr char shownAtFirst[] = "shownAtFirst";
constexpr char isTouched[] = "isTouched";
constexpr char refusal[] = "refusal";

/* A list of choices that knows whether one was taken from its opened list, which ends the choice. */
class ChoiceField : public QComboBox
{
public:
    using QComboBox::QComboBox;

    bool wasOpened() const { return m_wasOpened; }
    void showPopup() override
    {
        m_wasOpened = true;
        QComboBox::showPopup();
    }

private:
    bool m_wasOpened = false;
};

void noteTyping(QWidget *field)
{
    const auto *line = qobject_cast<QLineEdit *>(field);
    if (!line)
        line = field->findChild<QLineEdit *>();
    if (line)
        QObject::connect(line, &QLineEdit::textEdited, field,
                         [field] { field->setProperty(isTouched, true); });
}

} // namespace

ValueDelegate::ValueDelegate(SettingsModel &model, Dialogs &dialogs, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_dialogs(dialogs)
{
}

QWidget *ValueDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                     const QModelIndex &index) const
{
    const ShownSetting shown = m_model.setting(index);
    const bool fits = m_model.isOfItsKind(shown);
    const SettingKind kind = shown.known ? shown.known->kind : SettingKind::text;
    auto *const self = const_cast<ValueDelegate *>(this); // which the toolkit asks as a constant one

    if (kind == SettingKind::number && fits) {
        auto *field = new QSpinBox(parent);
        field->setLocale(QLocale::c());
        field->setRange(shown.known->least, shown.known->most);
        field->setFrame(false);
        noteTyping(field);
        return field;
    }
    if (kind == SettingKind::choice || kind == SettingKind::onOff) {
        auto *field = new ChoiceField(parent);
        field->addItems(kind == SettingKind::onOff ? QStringList{u"true"_s, u"false"_s}
                                                   : choicesOf(*shown.known));
        field->setEditable(!fits);
        noteTyping(field);
        connect(field, &QComboBox::activated, this, [self, field] {
            field->setProperty(isTouched, true);
            if (!field->wasOpened())
                return; // a letter or an arrow looks through the choices
            Q_EMIT self->commitData(field);
            Q_EMIT self->closeEditor(field);
        });
        return field;
    }
    auto *field = new QLineEdit(parent);
    field->setFrame(false);
    noteTyping(field);
    connect(field, &QLineEdit::textEdited, this, [this, field, shown](const QString &text) {
        const QString reason = m_model.refusal(shown, text);
        field->setProperty(refusal, reason);
        Q_EMIT typed(reason.isEmpty() && shown.known ? valueFault(*shown.known, text) : reason);
    });
    if (kind == SettingKind::file || kind == SettingKind::folder) {
        const QAction *choose = field->addAction(QApplication::style()->standardIcon(QStyle::SP_DirOpenIcon),
                                                 QLineEdit::TrailingPosition);
        connect(choose, &QAction::triggered, this,
                [self, field, place = QPersistentModelIndex(index)] { self->choosePath(field, place); });
    }
    return field;
}

// The field goes first: a dialog takes the focus from it, which would end it in the middle of the choice.
void ValueDelegate::choosePath(QWidget *editor, const QPersistentModelIndex &index)
{
    const bool isFolder = m_model.setting(index).known->kind == SettingKind::folder;
    const QString before = textOf(editor);
    Q_EMIT closeEditor(editor);
    const QString path = isFolder ? m_dialogs.chooseFolder(before) : m_dialogs.chooseFile(before);
    if (!path.isEmpty() && index.isValid())
        m_model.setData(index, path);
}

QString ValueDelegate::textOf(const QWidget *editor) const
{
    if (const auto *number = qobject_cast<const QSpinBox *>(editor))
        return QString::number(number->value());
    if (const auto *choice = qobject_cast<const QComboBox *>(editor))
        return choice->currentText();
    return qobject_cast<const QLineEdit *>(editor)->text();
}

void ValueDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (editor->property(shownAtFirst).isValid())
        return; // the file changes while a person is typing: the person's text stays
    const QString value = index.data(Qt::EditRole).toString();
    if (auto *number = qobject_cast<QSpinBox *>(editor)) {
        number->setValue(value.toInt());
        number->selectAll();
    } else if (auto *choice = qobject_cast<QComboBox *>(editor)) {
        choice->setCurrentIndex(choice->findText(value));
        if (choice->isEditable()) {
            choice->setEditText(value);
            choice->lineEdit()->selectAll();
        }
    } else {
        qobject_cast<QLineEdit *>(editor)->setText(value);
    }
    editor->setProperty(shownAtFirst, textOf(editor));
}

// What nobody touched is not written: neither a default nor a number in other digits.
void ValueDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *number = qobject_cast<QSpinBox *>(editor))
        number->interpretText();
    const QString text = textOf(editor);
    if (editor->property(isTouched).toBool() || text != editor->property(shownAtFirst).toString())
        model->setData(index, text, Qt::EditRole);
}

// A text that cannot be taken stays in its field, so that it can be mended.
bool ValueDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && !watched->property(refusal).toString().isEmpty()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab)
            return true;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}
