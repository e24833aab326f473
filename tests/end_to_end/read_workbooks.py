"""read_workbooks.py FILE.xlsx...: holds workbooks of forms against the projects that they come from, which
lie beside them as `vellumo info --json` tells them."""
import json
import re
import sys

import openpyxl

HEADINGS = {
    'survey': ['type', 'name', 'label', 'hint', 'appearance', 'parameters'],
    'choices': ['list_name', 'name', 'label'],
    'settings': ['form_title', 'form_id', 'version'],
}
# By type: what `type` begins with, and the appearance.
TYPES = {
    'Text': ('text', None), 'Numeric': ('decimal', None), 'Pulldown List': ('select_one', 'minimal'),
    'Yes/No': ('select_one', None), 'Signature': ('image', 'signature'), 'Notes': ('image', 'draw'),
    'Date/Time': ('dateTime', None), 'Currency': ('decimal', None), 'Scanned Barcode': ('barcode', None),
    'Checkboxes': ('select_multiple', None),
}
NAME = re.compile(r'[A-Za-z_][A-Za-z0-9._-]*')


def rows(sheet):
    headings, *rest = sheet.iter_rows(values_only=True)
    assert list(headings) == HEADINGS[sheet.title], headings
    wide = sheet.column_dimensions['A']  # and what follows it
    assert wide.width > 20 and (wide.min, wide.max) == (1, len(headings)), sheet.title
    assert sheet.freeze_panes == 'A2', sheet.title
    return [dict(zip(headings, row)) for row in rest]


def check(path):
    with open(path.removesuffix('.xlsx') + '.json', encoding='utf-8') as file:
        project = json.loads(file.readline())
    book = openpyxl.load_workbook(path)
    assert book.sheetnames == list(HEADINGS), book.sheetnames
    survey, choices, settings = (rows(book[name]) for name in HEADINGS)
    questions = project['questionList']
    assert len(survey) == len(questions)
    for row, question in zip(survey, questions):
        kind, appearance = TYPES[question['type']]
        assert row['type'].split(' ')[0] == kind, row
        assert row['appearance'] == appearance, row
        assert NAME.fullmatch(row['name']) and row['name'] == question['columnName'], row
        assert row['label'] == question['question'].replace('\\n', '\n'), row
        assert row['hint'].startswith(question['title']), row
        if 'items' in question:
            labels = [choice['label'] for choice in choices
                      if choice['list_name'] == row['type'].split(' ')[1]]
            assert labels == question['items'], row
    for choice in choices:
        assert not re.search(r'\s', choice['name']), choice
    keys = [(choice['list_name'], choice['name'].lower()) for choice in choices]
    assert len(keys) == len(set(keys))
    assert settings == [{'form_title': project['name'], 'form_id': project['name'],
                         'version': project['version']}], settings
    print(f'{project["name"]}: {len(survey)} questions and {len(choices)} choices')


for name in sys.argv[1:]:
    check(name)
