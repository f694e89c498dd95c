"""Prints a workbook as JSON: each sheet's name and rows of cells."""
import json
import sys

import openpyxl

book = openpyxl.load_workbook(sys.argv[1])
print(json.dumps([[s.title, [[c.value for c in r] for r in s.iter_rows()]] for s in book]))
