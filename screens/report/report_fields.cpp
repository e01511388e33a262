#include "screens/report/report_fields.h"

#include "core/text.h"
#include "screens/command_runner.h"
#include "screens/date_field.h"
#include "screens/field_keys.h"
#include "screens/report/report_run.h"
#include "screens/search_field.h"

namespace {

constexpr int longestShown = 60;  // characters

QWidget* textControl(const ReportField& field, ReportSelection& selection, const Session& session,
                     const std::function<void()>& changed)
{
    auto* edit = new QLineEdit(selection[field.name]);
    edit->setObjectName(field.name);
    edit->setMaximumWidth(edit->fontMetrics().averageCharWidth() * longestShown);
    setFieldKeys(*edit);
    QWidget* control = edit;
    if (field.search)
        control = new SearchField(edit, [&selection, session, search = field.search] {
            return search(selection, session);
        });
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [&selection, name = QString(field.name), changed](const QString& text) {
                         if (selection[name] == text)
                             return;
                         selection.set(name, text);
                         changed();
                     });
    return control;
}

// The selection has a date as it is shown, whatever form it is typed in; what is no date as typed.
QWidget* dateControl(const ReportField& field, ReportSelection& selection,
                     const std::function<void()>& changed)
{
    auto* date = new DateField(field.name);
    date->setDate(selection[field.name]);
    QObject::connect(date, &QLineEdit::textChanged, date,
                     [&selection, date, name = QString(field.name), changed] {
                         const QString value = date->isValid() ? date->date() : date->text();
                         if (selection[name] == value)
                             return;
                         selection.set(name, value);
                         changed();
                     });
    return date;
}

QWidget* boxControl(const ReportField& field, ReportSelection& selection,
                    const std::function<void()>& changed)
{
    auto* box = new QCheckBox(field.caption);
    box->setChecked(selection.isTicked(field.name));
    QObject::connect(box, &QCheckBox::toggled, box,
                     [&selection, name = QString(field.name), changed](bool ticked) {
                         selection.tick(name, ticked);
                         changed();
                     });
    return box;
}

QString choiceValue(const ReportField& field, int row)
{
    return field.choiceValues.value(row, QString::number(row + 1));
}

// Shows the choices and the selected one; where it is not among them, the first one is selected.
void showChoices(QComboBox& choice, const ReportField& field, ReportSelection& selection,
                 const QStringList& choices)
{
    choice.clear();
    choice.addItems(choices);
    int row = 0;
    while (row < choice.count() && choiceValue(field, row) != selection[field.name])
        ++row;
    if (row == choice.count() && field.choicesFor && row > 0) {
        row = 0;
        selection.set(field.name, choiceValue(field, row));
    }
    choice.setCurrentIndex(row < choice.count() ? row : -1);
}

QComboBox* choiceControl(const ReportField& field, ReportSelection& selection,
                         const std::function<void()>& changed)
{
    auto* choice = new QComboBox;
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    showChoices(*choice, field, selection, field.choices);
    QObject::connect(choice, &QComboBox::activated, choice, [&selection, field, changed](int row) {
        selection.set(field.name, choiceValue(field, row));
        changed();
    });
    return choice;
}

std::function<void()> choicesAnew(QComboBox* choice, const ReportField& field,
                                  ReportSelection& selection, const Session& session)
{
    if (!field.choicesFor)
        return {};
    return [choice, field, &selection, session] {
        runCommand([&] {
            const QStringList choices = field.choicesFor(selection, session);
            QStringList shown;
            for (int row = 0; row < choice->count(); ++row)
                shown.append(choice->itemText(row));
            if (choices != shown)
                showChoices(*choice, field, selection, choices);
        });
    };
}

void addRow(QFormLayout* rows, const ReportField& field, QWidget* control)
{
    const bool showsCaption = field.kind != ReportField::Kind::Box &&
                              field.kind != ReportField::Kind::Remark && !field.caption.isEmpty();
    if (showsCaption)
        rows->addRow(field.caption, control);
    else
        rows->addRow(control);
}

}  // namespace

std::function<void()> addReportField(QFormLayout* rows, const ReportField& field,
                                     ReportSelection& selection, const Session& session,
                                     const std::function<void()>& changed)
{
    QWidget* control = nullptr;
    std::function<void()> refresh;
    switch (field.kind) {
        case ReportField::Kind::Text:
            control = textControl(field, selection, session, changed);
            break;
        case ReportField::Kind::Date:
            control = dateControl(field, selection, changed);
            break;
        case ReportField::Kind::Box:
            control = boxControl(field, selection, changed);
            break;
        case ReportField::Kind::Choice: {
            QComboBox* choice = choiceControl(field, selection, changed);
            refresh = choicesAnew(choice, field, selection, session);
            control = choice;
            break;
        }
        case ReportField::Kind::Remark:
            control = new QLabel(field.caption);
            break;
        case ReportField::Kind::Own:
            control = field.make(selection, session, changed);
            break;
    }
    // That of a field with a look-up is the line edit's.
    if (!control->findChild<QWidget*>(field.name))
        control->setObjectName(field.name);
    addRow(rows, field, control);
    return refresh;
}

void addWorkbookFields(QFormLayout* rows, ReportRun& run)
{
    auto* box = new QCheckBox("Create &Spreadsheet?");
    box->setObjectName(run.spec().workbookBox);
    auto* caption = new QLabel("Excel File Name:");
    caption->setObjectName("lblCExcelFileName");
    auto* name = new QLabel;
    name->setObjectName("lblExcelFileName");
    name->setTextFormat(Qt::PlainText);
    const auto showName = [caption, name, &run] {
        const bool ticked = run.selection.isTicked(run.spec().workbookBox);
        name->setText(run.workbookPath());
        caption->setVisible(ticked);
        name->setVisible(ticked);
    };
    rows->addRow(box);
    rows->addRow(caption, name);
    box->setChecked(run.selection.isTicked(run.spec().workbookBox));
    showName();
    QObject::connect(box, &QCheckBox::toggled, box, [showName, &run](bool ticked) {
        run.selection.tick(run.spec().workbookBox, ticked);
        run.selectionChanged();
        showName();
    });
}
