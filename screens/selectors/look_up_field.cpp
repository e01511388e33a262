#include "screens/selectors/look_up_field.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QToolButton>

#include "screens/command_runner.h"
#include "screens/field_keys.h"
#include "screens/name_label.h"

namespace {

// Offers lines of a code and its name, and puts the code alone into the field.
class CodeCompleter : public QCompleter
{
public:
    explicit CodeCompleter(QAbstractItemModel* model)
    {
        setModel(model);
        setCaseSensitivity(Qt::CaseInsensitive);
        setFilterMode(Qt::MatchContains);
        setMaxVisibleItems(10);
    }
    QString pathFromIndex(const QModelIndex& index) const override
    {
        return index.data(Qt::UserRole).toString();
    }
};

}  // namespace

LookUpField::LookUpField(const QString& name, const QString& nameLabel, LookUpSource source)
    : m_source(std::move(source)),
      m_edit(new QLineEdit),
      m_name(new NameLabel),
      m_button(new QToolButton),
      m_choices(new QStandardItemModel(this))
{
    m_edit->setObjectName(name);
    setFieldKeys(*m_edit, {.upperCase = true});
    m_name->setObjectName(nameLabel);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    m_name->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_button->setObjectName(name + "Search");
    m_button->setText("...");
    m_button->setToolTip("Search (?)");
    m_button->setAccessibleName("Search");
    m_button->setFocusPolicy(Qt::NoFocus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_edit);
    layout->addWidget(m_button);
    layout->addSpacing(6);
    layout->addWidget(m_name, 1);
    setFocusProxy(m_edit);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto* completer = new CodeCompleter(m_choices);
    completer->setParent(this);
    completer->popup()->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    m_edit->setCompleter(completer);
    onPressed(m_button, [this] { search(); });
    connect(m_edit, &QLineEdit::textEdited, this, &LookUpField::textEdited);
    connect(m_edit, &QLineEdit::textChanged, this, &LookUpField::changed);
    connect(m_edit, &QLineEdit::editingFinished, this, &LookUpField::takeTyped);
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            &LookUpField::takeTyped, Qt::QueuedConnection);
    // While choices are offered, Enter comes here, after it has taken one, and goes on as always.
    connect(
        m_edit, &QLineEdit::returnPressed, this,
        [this] {
            takeTyped();
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, "\t");
            QCoreApplication::sendEvent(m_edit, &tab);
        },
        Qt::QueuedConnection);
}

QString LookUpField::code() const
{
    return m_edit->text().trimmed();
}

void LookUpField::setCode(const QString& code)
{
    m_edit->setText(code.trimmed());
    check();
}

void LookUpField::check()
{
    m_checked = code();
    m_isValid = false;
    m_areChoicesDue = true;
    std::optional<QString> name;
    if (!m_checked.isEmpty())
        runCommand([&] { name = m_source.nameOf(m_checked); });
    m_isValid = name.has_value();
    m_name->setText(name ? *name : m_checked.isEmpty() ? m_source.nothing : m_source.notFound);
    m_name->setToolTip(m_name->text());
    Q_EMIT changed();
}

void LookUpField::takeTyped()
{
    const bool isOther = code() != m_checked;
    if (isOther || m_name->text().isEmpty())
        check();
    if (isOther)
        Q_EMIT codeChanged();
}

void LookUpField::textEdited(const QString& text)
{
    if (text.contains('?') || text.contains('/')) {
        setCode(m_checked);
        runCommand([this] { search(); });
        return;
    }
    m_name->clear();  // of another code
    if (m_areChoicesDue)
        offerChoices();
}

// Read once for each visit of the field.
void LookUpField::offerChoices()
{
    m_areChoicesDue = false;
    std::vector<CodeChoice> choices;
    runCommand([&] { choices = m_source.choices(); });
    m_choices->clear();
    for (const CodeChoice& choice : choices) {
        auto* item = new QStandardItem(choice.code + "   " + choice.name);
        item->setData(choice.code, Qt::UserRole);
        m_choices->appendRow(item);
    }
}

void LookUpField::search()
{
    const QString chosen = m_source.search();
    if (chosen.trimmed().isEmpty())
        return;
    const bool isOther = chosen.trimmed() != m_checked;
    setCode(chosen);
    if (isOther)
        Q_EMIT codeChanged();
}
