#include "core/line_amount.h"
#include "tools/demo/documents.h"

namespace demo {

void LineMaker::chooseMaterial(Line& line, const Header& header)
{
    const Trade trade = m_world.vendorOf(header.vendor).trade;
    const auto& shelf = m_world.shelf(m_world.jobOf(header.job).branch, trade);
    if (!shelf.empty() && m_random.chance(75)) {
        line.item = m_random.pick(shelf);
        const Item& item = m_world.item(line.item);
        line.description = item.description;
        line.price = m_random.chance(70) ? item.price
                                         : std::round(item.price * m_random.between(90, 107)) / 100;
    }
    int number = line.item >= 0 ? m_world.item(line.item).material : 0;
    while (materials[static_cast<size_t>(number)].trade != trade)
        number = m_random.below(static_cast<int>(materials.size()));
    const Material& material = materials[static_cast<size_t>(number)];
    if (line.item < 0) {
        line.description =
            QString("%1, %2\r\nAS PER DRAWING").arg(material.name, m_random.pick(sizes));
        line.price = m_random.price(material.lowPrice, material.highPrice);
        line.drawing = QString("D-%1-%2")
                           .arg(m_random.between(100, 999))
                           .arg(m_random.between(1, 60), 3, 10, QChar('0'));
    }
    line.unit = material.unit;
    line.factor = material.factor == 'e' && m_random.chance(80) ? QString(" ")
                                                                : QString(QChar(material.factor));
    line.quantity = std::max(1, material.usualQuantity * m_random.between(1, 8) / 4);
    if (QString(material.unit) == "LF" && m_random.chance(15))
        line.quantity += 0.5;
    line.materialCode = QString(QChar(trades[static_cast<size_t>(trade)].materialCode));
}

void LineMaker::chooseService(Line& line)
{
    line.description = m_random.pick(services);
    line.unit = m_random.chance(50) ? "HR" : "DAY";
    line.factor = " ";
    line.price = m_random.price(45, 1900);
    line.quantity = m_random.between(1, 20);
    line.materialCode = "";
}

void LineMaker::chooseCodes(Line& line, const Header& header)
{
    const Job& job = m_world.jobOf(header.job);
    for (int group = 0; group < 3; ++group) {
        const auto& codes = job.groups[group].codes;
        if (codes.empty() || (group > 0 && m_random.chance(10)))
            continue;
        const Group::Code& code = m_random.pick(codes);
        line.codes[group] = code.stored;
        if (!code.glCode.isEmpty())
            line.glCode = code.glCode;
    }
}

Line LineMaker::makeLine(const Header& header)
{
    Line line;
    line.tag = m_world.tags.ofSite("RQITAG");
    if (m_random.chance(4)) {  // a text line
        line.description = m_random.pick(notes);
        line.unit = "";
        line.factor = " ";
        return line;
    }
    if (header.type == "M")
        chooseMaterial(line, header);
    else
        chooseService(line);
    chooseCodes(line, header);
    line.amount = lineAmount(line.quantity, line.price, line.factor).value();
    return line;
}

std::vector<Line> LineMaker::make(const Header& header, int count)
{
    std::vector<Line> lines;
    int items = 0;
    for (int i = 0; i < count; ++i) {
        lines.push_back(makeLine(header));
        if (lines.back().quantity != 0)
            ++items;
        lines.back().reqNumber = i + 1;
        lines.back().reqItem = items;
    }
    return lines;
}

}  // namespace demo
