#!/usr/bin/python3
"""Writes a workbook of every kind of cell by a library that is not the program's."""
import datetime
import sys

rows = [
    ["00123", 12, 1.25, -7, 1e300, 1234567890, True, False],
    [None, "Größe 配管", datetime.date(2026, 3, 7), datetime.datetime(2026, 3, 7, 18, 30, 15),
     datetime.time(6, 45), None, None, "last"],
    [],
    [1, 2, 3, 4.5, 5, 6.25],
]


def write_xls(path):
    import xlwt
    book = xlwt.Workbook()
    forms = {datetime.date: "MM/DD/YYYY", datetime.datetime: "YYYY-MM-DD HH:MM:SS",
             datetime.time: "HH:MM"}
    for name in ("One", "Two"):
        sheet = book.add_sheet(name)
        for row, cells in enumerate(rows):
            for column, value in enumerate(cells):
                form = forms.get(type(value), "General")
                if value is not None:
                    sheet.write(row, column, value, xlwt.easyxf(num_format_str=form))
        sheet.write_rich_text(4, 0, [("rich ", xlwt.easyfont("bold true")), "text"])
        sheet.write(5, 0, "long" * 8000)
    book.save(path)


def write_xlsx(path):
    import openpyxl
    book = openpyxl.Workbook()
    book.remove(book.active)
    for name in ("One", "Two"):
        sheet = book.create_sheet(name)
        for cells in rows:
            sheet.append(cells)
        sheet["A5"] = "rich text"
        sheet["A6"] = "long" * 8000
    book.save(path)


(write_xlsx if sys.argv[1].endswith("x") else write_xls)(sys.argv[1])
