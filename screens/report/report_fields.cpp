#include "screens/report/report_fields.h"

#include "core/dates.h"
#include "core/text.h"
#include "screens/field_keys.h"
#include "screens/report/report_run.h"

namespace {

constexpr int longestShown = 60;  // characters

void repairDate(QLineEdit* edit)
{
    const QString date = dnFixDate(edit->text());
    if (dnNotBlank(date))
        edit->setText(date);
}

QWidget* textControl(const ReportField& field, ReportSelection& selection,
                     const std::function<void()>& changed)
{
    const bool isDate = field.kind == ReportField::Kind::Date;
    auto* edit = new QLineEdit(selection[field.name]);
    edit->setMaximumWidth(edit->fontMetrics().averageCharWidth() * longestShown);
    setFieldKeys(*edit, {.dateKeys = isDate});
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [&selection, name = QString(field.name), changed](const QString& text) {
                         selection.set(name, text);
                         changed();
                     });
    if (isDate) {
        edit->setMaximumWidth(edit->fontMetrics().horizontalAdvance("00/00/0000") * 2);
        QObject::connect(edit, &QLineEdit::editingFinished, edit, [edit] { repairDate(edit); });
    }
    return edit;
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

QWidget* choiceControl(const ReportField& field, ReportSelection& selection,
                       const std::function<void()>& changed)
{
    auto* choice = new QComboBox;
    choice->addItems(field.choices);
    choice->setCurrentIndex(selection[field.name].toInt() - 1);
    QObject::connect(choice, &QComboBox::activated, choice,
                     [&selection, name = QString(field.name), changed](int row) {
                         selection.set(name, QString::number(row + 1));
                         changed();
                     });
    return choice;
}

}  // namespace

void addReportField(QFormLayout* rows, const ReportField& field, ReportSelection& selection,
                    const Session& session, const std::function<void()>& changed)
{
    QWidget* control = nullptr;
    switch (field.kind) {
        case ReportField::Kind::Text:
        case ReportField::Kind::Date:
            control = textControl(field, selection, changed);
            break;
        case ReportField::Kind::Box:
            control = boxControl(field, selection, changed);
            break;
        case ReportField::Kind::Choice:
            control = choiceControl(field, selection, changed);
            break;
        case ReportField::Kind::Remark:
            control = new QLabel(field.caption);
            break;
        case ReportField::Kind::Own:
            control = field.make(selection, session);
            break;
    }
    control->setObjectName(field.name);
    const bool showsCaption = field.kind != ReportField::Kind::Box &&
                              field.kind != ReportField::Kind::Remark && !field.caption.isEmpty();
    if (showsCaption)
        rows->addRow(field.caption, control);
    else
        rows->addRow(control);
}

void addWorkbookFields(QFormLayout* rows, ReportRun& run)
{
    auto* box = new QCheckBox("Create &Spreadsheet?");
    box->setObjectName("ckbCreateExcel");
    auto* caption = new QLabel("Excel File Name:");
    caption->setObjectName("lblCExcelFileName");
    auto* name = new QLabel;
    name->setObjectName("lblExcelFileName");
    name->setTextFormat(Qt::PlainText);
    const auto showName = [caption, name, &run] {
        const bool ticked = run.selection.isTicked("ckbCreateExcel");
        name->setText(run.workbookPath());
        caption->setVisible(ticked);
        name->setVisible(ticked);
    };
    rows->addRow(box);
    rows->addRow(caption, name);
    box->setChecked(run.selection.isTicked("ckbCreateExcel"));
    showName();
    QObject::connect(box, &QCheckBox::toggled, box, [showName, &run](bool ticked) {
        run.selection.tick("ckbCreateExcel", ticked);
        run.selectionChanged();
        showName();
    });
}
