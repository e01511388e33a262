// A printed form as data: its heads, the columns of its lines and its foot. form_drawing.h draws
// any of them.
#pragma once

#include <functional>

#include "purchasing/forms/form_document.h"
#include "purchasing/forms/print_buffer.h"
#include "screens/report/page_document.h"

// A box of the head or the foot.
struct FormBox
{
    enum class Kind {
        Field,
        Page,       // the page's number and how many there are, in the gaps of its label
        Total,      // of the document, on its last page
        Signature,  // room for a name written by hand, the text below it
    };
    QString label;
    QString FormDocument::*text;
    int width;  // in parts of the page's width
    Kind kind = Kind::Field;
};
inline constexpr int pageParts = 1000;

struct FormBoxRow
{
    int height;  // twips
    std::vector<FormBox> boxes;
};

struct FormColumn
{
    QString heading;
    int width;  // twips; 0: what the others leave
    TextAlignment alignment;
    std::function<QString(const FormRow&)> cell;
    bool wraps = false;  // what does not fit goes on in the rows of the description
};

struct Form
{
    QStringList title;
    std::vector<FormBox> besideTitle;  // boxes under the title
    std::vector<FormBoxRow> head;
    std::vector<FormColumn> columns;
    // Under the columns, on the last page and on all others; none: no such line.
    std::optional<FormRow> totals = {};
    std::optional<FormRow> continued = {};
    std::vector<FormBoxRow> foot;
    bool hasNotes = true;  // the lines below the foot
};

// The columns' widths on a page that is so wide between its margins.
std::vector<int> columnWidths(const Form& form, int width);
// How many characters a cell of that width holds in its full size, and a line of the description.
int cellLength(int width);
int descriptionLength(const Form& form, int width);

enum class OrderForm { Standard, Inventory, Payment, Receiving, Status, Billing, Issues };

// The form with the columns and blocks that the settings ask for.
Form orderForm(OrderForm form, const FormSettings& settings, const FormDocument& document);
Form requisitionForm(const FormSettings& settings, const FormDocument& document);
Form quotationForm(const FormSettings& settings, const FormDocument& document);
