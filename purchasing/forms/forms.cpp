#include "core/number_format.h"
#include "purchasing/forms/form.h"

namespace {

using Kind = FormBox::Kind;

constexpr char priceMask[] = "###,###,###.000";
constexpr char amountMask[] = "###,###,###.00";
constexpr int boxHeight = 440;
constexpr int signatureHeight = 580;
constexpr double characterWidth = 96.1;  // twips, of Courier New 8; rather a little more
constexpr int cellPadding = 50;

QString shown(const std::optional<double>& number, const char* mask)
{
    return number ? dnFormat(*number, mask) : QString();
}

// Behind each number stands one character, so that the points stand below each other.
QString withMark(const QString& number, const QString& mark)
{
    return number.isEmpty() ? QString() : number + (mark.isEmpty() ? QString(' ') : mark);
}

// ---- columns
FormColumn itemColumn(const QString& heading = "ITEM", int width = 490)
{
    return {heading, width, TextAlignment::Centre,
            [](const FormRow& row) { return dnFormat(row.item, "###"); }};
}

FormColumn quantityColumn(const FormSettings& settings)
{
    const char* mask = settings.wholeQuantities ? "###,###" : "###,###.0";
    return {"QUANTITY", 930, TextAlignment::Right,
            [mask](const FormRow& row) { return shown(row.quantity, mask); }};
}

FormColumn unitColumn()
{
    return {"UNIT", 590, TextAlignment::Centre, [](const FormRow& row) { return row.unit; }};
}

FormColumn descriptionColumn()
{
    return {"DESCRIPTION", 0, TextAlignment::Left, [](const FormRow& row) { return row.text; }};
}

FormColumn priceColumn()
{
    return {"UNIT PRICE", 1250, TextAlignment::Right, [](const FormRow& row) {
                return withMark(shown(row.unitPrice, priceMask), row.unitFactor);
            }};
}

FormColumn amountColumn()
{
    return {"AMOUNT", 1350, TextAlignment::Right, [](const FormRow& row) {
                return withMark(shown(row.amount, amountMask), row.adjustment);
            }};
}

FormColumn furtherColumn(const QString& heading, int width, TextAlignment alignment, int number,
                         bool wraps = false)
{
    return {heading, width, alignment,
            [number](const FormRow& row) { return row.further.value(number); }, wraps};
}

// Columns of nothing, to be filled by hand.
FormColumn emptyColumn(const QString& heading, int width)
{
    return {heading, width, TextAlignment::Left, [](const FormRow&) { return QString(); }};
}

FormColumn costCodeColumn(const FormSettings& settings)
{
    return {"COST CODES", settings.hasAssetColumn ? 1450 : 1700, TextAlignment::Left,
            [](const FormRow& row) { return row.costCodes; }, true};
}

std::vector<FormColumn> standardColumns(const FormSettings& settings)
{
    std::vector<FormColumn> columns = {itemColumn()};
    if (settings.hasSecondColumn)
        columns.push_back({settings.secondColumn, 1260, TextAlignment::Left,
                           [](const FormRow& row) { return row.vendorInvoice; }, true});
    for (const FormColumn& column : {quantityColumn(settings), unitColumn(), descriptionColumn(),
                                     priceColumn(), amountColumn()})
        columns.push_back(column);
    if (settings.hasAssetColumn)
        columns.push_back(
            {"ASSET", 640, TextAlignment::Centre, [](const FormRow& row) { return row.asset; }});
    columns.push_back(costCodeColumn(settings));
    return columns;
}

std::vector<FormColumn> inventoryColumns(const FormSettings& settings)
{
    return {itemColumn(),
            quantityColumn(settings),
            unitColumn(),
            {"PART NUMBER", 1400, TextAlignment::Left,
             [](const FormRow& row) { return row.partNumber; }, true},
            furtherColumn("MFG", 1400, TextAlignment::Left, 0, true),
            descriptionColumn(),
            priceColumn(),
            amountColumn(),
            furtherColumn("BIN NO.", 800, TextAlignment::Left, 1)};
}

// Of receipts and of issues.
std::vector<FormColumn> movementColumns(const FormSettings& settings, const QString& date,
                                        const QString& reference)
{
    return {itemColumn(),
            quantityColumn(settings),
            unitColumn(),
            descriptionColumn(),
            priceColumn(),
            amountColumn(),
            furtherColumn(date, 1240, TextAlignment::Centre, 0),
            furtherColumn(reference, 1300, TextAlignment::Left, 1, true),
            furtherColumn("JOB NUMBER", 1000, TextAlignment::Left, 2)};
}

std::vector<FormColumn> statusColumns()
{
    std::vector<FormColumn> columns = {itemColumn("PO ITM", 680)};
    int number = 0;
    for (const auto& [heading, width] : {std::pair("ORDERED", 1020),
                                         {"RECEIVED", 1020},
                                         {"RETURNED", 1020},
                                         {"BK ORDERED", 1180},
                                         {"BALANCE", 1020}})
        columns.push_back(furtherColumn(heading, width, TextAlignment::Right, number++));
    columns.push_back(unitColumn());
    columns.push_back(descriptionColumn());
    return columns;
}

std::vector<FormColumn> billingColumns()
{
    std::vector<FormColumn> columns = {itemColumn("PO ITM", 680), descriptionColumn()};
    int number = 0;
    for (const char* heading : {"AMOUNT", "PRIOR", "CURRENT", "BALANCE"})
        columns.push_back(furtherColumn(heading, 1500, TextAlignment::Right, number++));
    return columns;
}

// ---- heads
FormBox pageBox(int width)
{
    return {"PAGE             OF", nullptr, width, Kind::Page};
}

std::vector<FormBoxRow> standardHead(const QString& requisitionLabel, bool hasRevision,
                                     bool hasJobNumber)
{
    FormBoxRow numbers{boxHeight, {{"SHIP TO", &FormDocument::shipTo, 550}}};
    numbers.boxes.push_back({"PO NUMBER", &FormDocument::number, hasJobNumber ? 270 : 450});
    if (hasJobNumber)
        numbers.boxes.push_back({"JOB NUMBER", &FormDocument::jobNumber, 180});
    FormBoxRow delivery{boxHeight,
                        {{"SHIP VIA", &FormDocument::shipVia, 550},
                         {"FOB", &FormDocument::fob, 250},
                         pageBox(hasRevision ? 135 : 200)}};
    if (hasRevision)
        delivery.boxes.push_back({"REV.", &FormDocument::revision, 65});
    return {numbers,
            delivery,
            {boxHeight,
             {{"SHIPMENT PROMISED BY", &FormDocument::promisedBy, 225},
              {"TERMS", &FormDocument::terms, 325},
              {requisitionLabel, &FormDocument::requisitionNumber, 270},
              {"REIMBURSIBLE?", &FormDocument::reimbursable, 180}}},
            {boxHeight,
             {{"VENDOR CONTACT", &FormDocument::vendorContact, 380},
              {"VENDOR NUMBER", &FormDocument::vendorNumber, 170},
              {"VENDOR", &FormDocument::vendor, 450}}},
            {boxHeight + 220,
             {{"ADDRESS", &FormDocument::address, 550},
              {"CITY", &FormDocument::city, 260},
              {"STATE", &FormDocument::state, 60},
              {"ZIP/PLUS4", &FormDocument::zip, 130}}},
            {boxHeight,
             {{"PHONE", &FormDocument::phone, 225},
              {"FAX", &FormDocument::fax, 325},
              {"QLEVEL", &FormDocument::qualityLevel, 450}}}};
}

std::vector<FormBoxRow> statusHead(bool hasJobNumber)
{
    std::vector<FormBoxRow> head = standardHead("REQUISITION NUMBER", true, hasJobNumber);
    head.back().boxes.back().width = 270;
    head.back().boxes.push_back({"PO DATE", &FormDocument::orderDate, 180});
    return head;
}

std::vector<FormBoxRow> billingHead()
{
    return {{boxHeight + 220,
             {{"INVOICE NUMBER", &FormDocument::invoiceNumber, 225},
              {"VENDOR INVOICE NUMBER(S)", &FormDocument::vendorInvoices, 775}}},
            {boxHeight,
             {{"JOB NUMBER", &FormDocument::jobNumber, 120},
              {"PO NUMBER", &FormDocument::number, 205},
              {"VENDOR", &FormDocument::vendor, 425},
              {"VENDOR NUMBER", &FormDocument::vendorNumber, 130},
              pageBox(120)}},
            {boxHeight + 220,
             {{"ADDRESS", &FormDocument::address, 550},
              {"VENDOR CONTACT", &FormDocument::vendorContact, 450}}},
            {boxHeight,
             {{"CITY", &FormDocument::city, 325},
              {"STATE", &FormDocument::state, 80},
              {"ZIP/PLUS4", &FormDocument::zip, 145},
              {"PHONE", &FormDocument::phone, 225},
              {"FAX", &FormDocument::fax, 225}}},
            {boxHeight,
             {{"PO DATE", &FormDocument::orderDate, 550},
              {"REQUISITION NUMBER", &FormDocument::requisitionNumber, 450}}}};
}

std::vector<FormBox> signedDate()
{
    return {{"DATE", &FormDocument::date, 400}, {"APPROVED BY", &FormDocument::approvedBy, 600}};
}

// ---- feet
FormBoxRow useRow()
{
    return {boxHeight,
            {{"INTENDED USE OF MATERIAL", &FormDocument::intendedUse, 620},
             {"REQUIRED BY DATE", &FormDocument::requiredBy, 150},
             {"TOTAL:", &FormDocument::total, 230, Kind::Total}}};
}

std::vector<FormBoxRow> standardFoot(const FormSettings& settings, const FormDocument& document)
{
    std::vector<FormBoxRow> foot = {useRow()};
    if (settings.hasQualityBlocks)
        foot.push_back({signatureHeight,
                        {{"RECEIVER", nullptr, 500, Kind::Signature},
                         {"Q. C. ENGINEER", nullptr, 500, Kind::Signature}}});
    foot.push_back({signatureHeight,
                    {{"REQUISITIONER", &FormDocument::requisitioner, 333, Kind::Signature},
                     {"VENDOR ACKNOWLEDGEMENT", nullptr, 333, Kind::Signature},
                     {document.approver.isEmpty() ? "APPROVED BY CLIENT" : "CLIENT APPROVER",
                      &FormDocument::approver, 334, Kind::Signature}}});
    return foot;
}

FormBoxRow remarksRow()
{
    return {boxHeight, {{"REMARKS", &FormDocument::remarks, pageParts}}};
}

std::vector<FormBoxRow> statusFoot()
{
    return {{signatureHeight,
             {{"REMARKS ", nullptr, 667, Kind::Signature},
              {"REQUISITIONER", &FormDocument::requisitioner, 333, Kind::Signature}}}};
}

QStringList titleOf(OrderForm form)
{
    switch (form) {
        case OrderForm::Standard:
        case OrderForm::Inventory:
            return {"PURCHASE ORDER"};
        case OrderForm::Payment:
            return {"AUTHORIZATION FOR", "PAYMENT"};
        case OrderForm::Receiving:
            return {"MATERIAL RECEIVING", "REPORT"};
        case OrderForm::Status:
            return {"STATUS", "PURCHASE ORDER"};
        case OrderForm::Billing:
            return {"BILLING STATUS", "REPORT"};
        case OrderForm::Issues:
            return {"MATERIAL ISSUED", "REPORT"};
    }
    return {};
}

std::vector<FormColumn> columnsOf(OrderForm form, const FormSettings& settings)
{
    switch (form) {
        case OrderForm::Inventory:
            return inventoryColumns(settings);
        case OrderForm::Payment:
        case OrderForm::Receiving:
            return movementColumns(settings, "DATE RECEIVED", "REFERENCE");
        case OrderForm::Issues:
            return movementColumns(settings, "DATE RELEASED", "ISSUED TO");
        case OrderForm::Status:
            return statusColumns();
        case OrderForm::Billing:
            return billingColumns();
        case OrderForm::Standard:
            break;
    }
    std::vector<FormColumn> columns = standardColumns(settings);
    columns.push_back({"REV.", 480, TextAlignment::Centre,
                       [](const FormRow& row) { return dnFormat(row.revision, "##"); }});
    return columns;
}

}  // namespace

std::vector<int> columnWidths(const Form& form, int width)
{
    std::vector<int> widths;
    int left = width;
    for (const FormColumn& column : form.columns)
        left -= column.width;
    for (const FormColumn& column : form.columns)
        widths.push_back(column.width == 0 ? left : column.width);
    return widths;
}

int cellLength(int width)
{
    return std::max(1, static_cast<int>((width - 2 * cellPadding) / characterWidth));
}

int descriptionLength(const Form& form, int width)
{
    const std::vector<int> widths = columnWidths(form, width);
    for (size_t i = 0; i < widths.size(); ++i)
        if (form.columns[i].width == 0)
            return cellLength(widths[i]);
    return 1;
}

Form orderForm(OrderForm form, const FormSettings& settings, const FormDocument& document)
{
    const bool isStatus = form == OrderForm::Status;
    const bool isBilling = form == OrderForm::Billing;
    const bool hasJobNumber = !settings.joinsNumbers;
    Form made{.title = titleOf(form),
              .besideTitle = signedDate(),
              .head = isBilling  ? billingHead()
                      : isStatus ? statusHead(hasJobNumber)
                                 : standardHead("REQUISITION NUMBER", true, hasJobNumber),
              .columns = columnsOf(form, settings),
              .foot = isStatus    ? statusFoot()
                      : isBilling ? std::vector<FormBoxRow>()
                                  : standardFoot(settings, document),
              .hasNotes = !isStatus && !isBilling};
    if (isBilling) {
        made.totals = FormRow{.text = "TOTALS:"};
        made.continued = FormRow{.text = "(continued)"};
    }
    return made;
}

Form requisitionForm(const FormSettings& settings, const FormDocument& document)
{
    Form form{.title = {"REQUISITION"},
              .besideTitle = signedDate(),
              .head = standardHead("REQUISITION NUMBER", false, true),
              .columns = standardColumns(settings),
              .foot = standardFoot(settings, document)};
    form.foot.insert(form.foot.begin() + 1, remarksRow());
    return form;
}

Form quotationForm(const FormSettings& settings, const FormDocument& document)
{
    Form form = requisitionForm(settings, document);
    form.title = {"REQUEST FOR", "QUOTATION"};
    form.head = standardHead("QUOTATION NUMBER", false, true);
    form.head.insert(form.head.begin(), {boxHeight,
                                         {{"REPLY TO", &FormDocument::replyTo, 380},
                                          {"PHONE", &FormDocument::replyPhone, 170},
                                          {"FAX", &FormDocument::replyFax, 270},
                                          {"REPLY BY", &FormDocument::replyBy, 180}}});
    for (FormColumn& column : form.columns)
        if (column.heading == "UNIT PRICE" || column.heading == "AMOUNT")
            column = emptyColumn(column.heading, column.width);
        else if (column.heading == "COST CODES")
            column = emptyColumn("AVAILABILITY", column.width);
    return form;
}
