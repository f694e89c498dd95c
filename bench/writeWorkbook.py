#!/usr/bin/python3
"""Writes the cells of the Altium workbook of a database with XlsxWriter and prints the seconds that the
writing took, without reading the database: the reference of benchDatabase.cpp."""
import sys
import time
import xml.etree.ElementTree as tree

import xlsxwriter

GROUP, EMPTY = "group", ""
COLUMNS = ["d_ktm", GROUP, "d_value", "d_power", "d_voltage", "d_current", "d_tolerance", "d_otherParameters",
           "d_description", "d_name", "d_case", "d_quantity", "d_price", "d_averagePrice", "d_active", EMPTY,
           "d_libraryRef", "d_footprintRef"] + [f"d_footprintRef{number}" for number in range(2, 7)]


def cells(material, group):
    return [group if column == GROUP else column and (material.findtext(column) or "") for column in COLUMNS]


database, target = sys.argv[1:]
sheets = [[cells(material, group.get("name")) for material in group.findall("material")]
          for group in tree.parse(database).getroot().findall("d_group")]

start = time.perf_counter()
book = xlsxwriter.Workbook(target)
for rows in sheets:
    sheet = book.add_worksheet()
    for number, row in enumerate([COLUMNS] + rows):
        for column, text in enumerate(row):
            if text:
                sheet.write_string(number, column, text)
book.close()
print(time.perf_counter() - start)
