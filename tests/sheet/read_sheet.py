"""Prints what openpyxl finds in a spreadsheet: its settings, then a line per row, cells between bars.
Texts are in double quotes, formats in brackets, formulas before the value kept with them.
With --columnas also the width of each column, in characters."""
import json
import sys

import openpyxl


def shown(formula, cell):
    value = cell.value
    if value is None:
        return ""
    if isinstance(value, str):
        return json.dumps(value, ensure_ascii=False)
    text = value.strftime("%d/%m/%Y") if cell.is_date else repr(value)
    if isinstance(formula.value, str):
        text = formula.value + " -> " + text
    return text if cell.number_format == "General" else f"{text} [{cell.number_format}]"


book = openpyxl.load_workbook(sys.argv[1])
sheet, values = book.active, openpyxl.load_workbook(sys.argv[1], data_only=True).active
page = sheet.page_setup
print(sheet.title, book.properties.title, book.properties.creator, sep=" | ")
print(sheet.freeze_panes, sheet.auto_filter.ref, page.orientation, page.paperSize, page.fitToWidth,
      page.fitToHeight, sheet.print_title_rows, sep=" | ")
if "--columnas" in sys.argv:
    print(*(f"{sheet.column_dimensions[cell.column_letter].width:.0f} {cell.alignment.horizontal}"
            for cell in sheet[4]), sep=" | ")
for formulas, row in zip(sheet.iter_rows(), values.iter_rows()):
    print(*map(shown, formulas, row), sep=" | ")
