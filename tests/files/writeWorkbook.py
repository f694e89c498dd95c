#!/usr/bin/env python3
"""Writes the rows of standard input, fields separated by tabs, as a workbook with numbers as numbers."""
import sys

import openpyxl

book = openpyxl.Workbook()
book.active.title = "Notes"
book.active["B2"] = "not the list"
sheet = book.create_sheet("Parts")
for line in sys.stdin.read().splitlines():
    sheet.append([int(cell) if cell.isdigit() else cell or None for cell in line.split("\t")])
book.save(sys.argv[1])
