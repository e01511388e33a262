#!/usr/bin/python3
"""Reads a workbook by a library that is not the program's and tells its cells as JSON.

A list of sheets: name, widths of columns, rows of cells; a cell is its kind ("text", "number",
"boolean", "blank"), its value, and whether it is bold.
"""
import json
import sys


def read_xls(path):
    import xlrd
    book = xlrd.open_workbook(path, formatting_info=True)
    kinds = {xlrd.XL_CELL_TEXT: "text", xlrd.XL_CELL_NUMBER: "number"}
    for sheet in book.sheets():
        rows = []
        for row in range(sheet.nrows):
            cells = []
            for column in range(sheet.row_len(row)):
                cell = sheet.cell(row, column)
                font = book.font_list[book.xf_list[cell.xf_index or 0].font_index]
                cells.append([kinds.get(cell.ctype, "blank"), cell.value, font.weight >= 700])
            rows.append(cells)
        widths = {number: info.width / 256 for number, info in sheet.colinfo_map.items()}
        yield {"name": sheet.name, "rows": rows, "widths": widths}


def read_xlsx(path):
    import openpyxl
    kinds = {"s": "text", "inlineStr": "text", "n": "number", "b": "boolean"}
    for sheet in openpyxl.load_workbook(path).worksheets:
        rows = [[[kinds[cell.data_type] if cell.value is not None else "blank", cell.value,
                  bool(cell.font.b)] for cell in row] for row in sheet.iter_rows()]
        widths = {openpyxl.utils.column_index_from_string(name) - 1: dimension.width
                  for name, dimension in sheet.column_dimensions.items()}
        yield {"name": sheet.title, "rows": rows, "widths": widths}


path = sys.argv[1]
json.dump(list((read_xlsx if path.endswith("x") else read_xls)(path)), sys.stdout)
