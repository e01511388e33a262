// The purchase itself: the requisition, its lines, two orders, the ledger and the paper.
#include <QProcess>

#include "tools/tour/purchase_road.h"

namespace {

constexpr char orderOne[] = "4711M0000101";
constexpr char orderTwo[] = "4711M0000102";

struct Line
{
    QString part;  // of an inventory item, which gives unit, description and price
    QString quantity;
    QString unit;
    QString description;
    QString price;
    QString factor;
    QString amount;  // as it is shown
};

// One of each unit factor: the amount is quantity times price, for so many.
const Line lines[] = {
    {"GV-200", "10", "EA", "", "", "", "1,450.00"},
    {"", "6", "EA", "Pipe hanger, adjustable, 2 in", "12.50", "e", "75.00"},
    {"", "36", "EA", "Gasket, spiral wound, 2 in", "24.00", "d", "72.00"},
    {"", "0", "", "All material to gate 3, before noon.", "", "", ".00"},
    {"", "288", "EA", "Lock washer, 5/8 in", "30.00", "g", "60.00"},
    {"", "250", "EA", "Stud bolt with nuts, 5/8 x 3 1/4 in", "18.40", "c", "46.00"},
    {"", "1500", "LF", "Tracer wire, 12 AWG", "96.00", "m", "144.00"},
};
constexpr char allAmounts[] = "1,847.00";
constexpr char firstTotal[] = "1,597.00";  // of the lines that the first order takes
constexpr char secondTotal[] = "250.00";

void enterLine(Hands& hands, Road& road, const Line& line)
{
    hands.awaitFocus("txtQTY");
    if (!line.part.isEmpty()) {
        hands.keys({"Alt+B"});
        hands.awaitFocus("txtILCCODE");
        hands.fill({{"txtILCCODE", "01"}, {"txtPARTNO", line.part}});
    }
    hands.fill("txtQTY", line.quantity);
    if (line.part.isEmpty()) {
        hands.fill("txtUNIT", line.unit);
        hands.fill("txtDESC", line.description);
        hands.fill("txtUNITPRICE", line.price);
        hands.fill("txtUNITFACT", line.factor);
    }
    hands.fill({{"txtCOSTCODEA", "2000"}, {"txtCOSTCODEB", "MAT"}, {"txtGLCODE", "5120"}});
    hands.tabTo("txtDRAWINGNO");
    road.check("Amount of " + (line.part.isEmpty() ? line.description : line.part),
               hands.text("lblDAmount"), line.amount);
}

// The cell of each row in that column.
QStringList column(Hands& hands, int at)
{
    QStringList cells;
    for (const QStringList& row : hands.rows())
        cells.append(row.value(at).trimmed());
    return cells;
}

QStringList rowWith(Hands& hands, const QString& cell)
{
    for (const QStringList& row : hands.rows())
        if (row.contains(cell))
            return row;
    throw TourFailure("No row with " + cell + " is seen on " + hands.screenInFront() + '.');
}

constexpr int markColumn = 0;
constexpr int amountColumn = 7;

// The lines of these numbers, from 1, are tagged, all others not.
void tagLines(Hands& hands, const QList<int>& numbers)
{
    hands.keys({"Home"});
    for (int line = 1; line <= static_cast<int>(std::size(lines)); ++line)
        hands.keys({numbers.contains(line) ? "T" : "Down"});
}

void postToNewOrder(Hands& hands, Road& road, const QString& number, int items)
{
    hands.keys({"N"});
    hands.awaitScreen("frmVEXREQ09");
    road.check("The number that is offered", hands.text("txtPONO"), number);
    if (number == orderOne)
        road.picture("order_number", hands.picture(), "The number of the new order");
    hands.keys({"Return"});
    road.check("What is told", hands.answerBox("Return"),
               QString("PO Created: PO Number: %1 with %2 Items Has Been Created.")
                   .arg(number)
                   .arg(items));
}

QString textOfPdf(const QString& file)
{
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        throw TourFailure("Another program cannot read " + file + '.');
    return QString::fromUtf8(reader.readAllStandardOutput());
}

QImage pictureOfPdf(const QString& file)
{
    QProcess painter;
    painter.start("pdftoppm", {"-png", "-r", "80", "-f", "1", "-l", "1", file});
    if (!painter.waitForFinished() || painter.exitCode() != 0)
        throw TourFailure("Another program cannot show " + file + '.');
    return QImage::fromData(painter.readAllStandardOutput(), "PNG");
}

}  // namespace

void raiseRequisition(Hands& hands, Road& road)
{
    road.step("The requisition");
    road.tell(
        "**Documents**, *Requisitions*; **A** begins one, with the next number and what the "
        "job's defaults say.");
    hands.keys({"Alt+D", "1"});
    hands.awaitScreen("frmVEXREQ01");
    hands.keys({"A"});
    hands.awaitScreen("frmVEXREQ02");
    road.check("The number offered", hands.text("txtREQNO"), "00001");
    hands.fill({{"txtVENNOA", "HARBOR"},
                {"txtFDATE", "03/09/2026"},
                {"txtREQUIRED", "03/27/2026"},
                {"txtINTEND", "Pump house piping"}});
    road.check("The order's number", hands.text("txtPONO"), orderOne);
    road.picture("requisition", hands.picture(), "The head of a requisition");
    hands.command("cmdUpdate");
    hands.awaitScreen("frmVEXREQ01");

    road.step("Its lines");
    road.tell(
        "**T** goes to the line items, **A** adds. After each *Save and Exit* the next line "
        "begins in the quantity. The unit factor tells how many the price is for; a line of "
        "quantity 0 is a text; branch and part number bring an inventory item.");
    hands.keys({"T"});
    hands.awaitScreen("frmVEXRQI01");
    hands.keys({"A"});
    hands.awaitScreen("frmVEXRQI02");
    for (const Line& line : lines) {
        enterLine(hands, road, line);
        if (&line == &lines[0])
            road.picture("line", hands.picture(), "A line of an inventory item");
        hands.command("cmdUpdateExit");
    }
    hands.awaitFocus("txtQTY");
    hands.keys({"Esc"});
    hands.awaitScreen("frmVEXRQI01");
    hands.keys({"Home"});
    QStringList amounts;
    for (const Line& line : lines)
        amounts.append(line.amount);
    road.check("Amounts in the list", column(hands, amountColumn).join(" "), amounts.join(" "));
    road.picture("lines", hands.picture(), "The lines of the requisition");
}

void makeOrders(Hands& hands, Road& road)
{
    road.step("Two purchase orders");
    road.tell(
        "**T** tags a line; **N** turns the tagged ones into a new purchase order. The first "
        "four go to one vendor, the others to another.");
    tagLines(hands, {1, 2, 3, 4});
    road.check("Tags", column(hands, markColumn).join("-"), "T-T-T-T---");
    road.picture("tagged", hands.picture(), "Tagged lines");
    postToNewOrder(hands, road, orderOne, 4);
    tagLines(hands, {5, 6, 7});
    postToNewOrder(hands, road, orderTwo, 3);
    QStringList orders = column(hands, static_cast<int>(hands.rows().value(0).size()) - 1);
    orders.removeDuplicates();
    road.check("Orders of the lines", orders.join(" "), QString(orderOne) + ' ' + orderTwo);
    road.picture("ordered", hands.picture(), "Each line shows its order");
    hands.keys({"Ctrl+F4"});
    hands.awaitScreen("frmVEXREQ01");
    road.check("The requisition's total", hands.rows().value(0).filter("1,8").join(" "),
               allAmounts);
    road.picture("requisitions", hands.picture(), "The requisition with its total");
    hands.keys({"Ctrl+F4"});

    road.tell("**E** edits an order's head: the second one goes to another vendor.");
    hands.keys({"Alt+D", "2"});
    hands.awaitScreen("frmVEXPO01");
    road.check("The orders' totals",
               rowWith(hands, orderOne).filter(firstTotal).join("") + ' ' +
                   rowWith(hands, orderTwo).filter(secondTotal).join(""),
               QString(firstTotal) + ' ' + secondTotal);
    road.picture("orders", hands.picture(), "The purchase orders");
    hands.keys({"Down", "E"});
    hands.awaitScreen("frmVEXREQ02");
    road.check("The order in hand", hands.text("txtPONO"), orderTwo);
    hands.fill("txtVENNOA", "COAST");
    hands.command("cmdUpdate");
    hands.awaitScreen("frmVEXPO01");
    road.check("The vendor in the list", rowWith(hands, orderTwo).last(), "Coast Fastener Company");
    hands.keys({"Ctrl+F4"});
}

void lookAtLedger(Hands& hands, Road& road)
{
    road.step("The ledger");
    road.tell("The order has put the item on order: **History** in the item list.");
    hands.keys({"Alt+I", "1"});
    hands.awaitScreen("frmVEXINV01");
    hands.command("cmdHistory");
    hands.awaitScreen("frmVEXINV04");
    road.check(
        "The item's history", hands.rows().value(0).join(", "),
        QString("Purchase Order - Line Item, %1, 03/09/2026, 10.00, 10.00, .00").arg(orderOne));
    road.picture("ledger", hands.picture(), "The ledger of the item");
    hands.keys({"Ctrl+F4"});
    hands.awaitScreen("frmVEXINV01");
    hands.keys({"Ctrl+F4"});
}

void printOrder(Hands& hands, Road& road, const QString& pdf)
{
    road.step("The printed order");
    road.tell(
        "**P** in the list of orders prints: **1** is the order itself. The pages are shown as "
        "they will be on paper; **Alt+D** keeps them as a PDF file.");
    hands.keys({"Alt+D", "2"});
    hands.awaitScreen("frmVEXPO01");
    hands.keys({"Home", "P"});
    hands.awaitScreen("frmVEXPO04");
    hands.keys({"Alt+1"});
    hands.awaitText("lblProcess", "Report Ready to Print");
    road.picture("preview", hands.picture(), "The preview");
    hands.command("cmdPDF");
    const QString text = textOfPdf(pdf);
    for (const char* expected :
         {orderOne, "Alder Mechanical Contractors", "Harbor Pipe & Supply", "Pump House, Gate 3",
          "Gate valve, 2 in, class 150, flanged", "Pipe hanger, adjustable, 2 in",
          "Gasket, spiral wound, 2 in", "All material to gate 3, before noon.", firstTotal, "2000",
          "MAT", "5120"})
        road.check("On paper", text.contains(expected) ? expected : text, expected);
    road.picture("order", pictureOfPdf(pdf), "The order on paper");
    hands.keys({"Ctrl+F4"});
    hands.awaitScreen("frmVEXPO01");
    hands.keys({"Ctrl+F4"});
}
