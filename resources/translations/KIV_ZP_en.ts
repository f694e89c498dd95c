<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Kiv_bomViewWindow</name>
    <message numerus="yes">
        <source>%n line(s) deleted</source>
        <translation>
            <numerusform>%n line deleted</numerusform>
            <numerusform>%n lines deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) pasted</source>
        <translation>
            <numerusform>%n line pasted</numerusform>
            <numerusform>%n lines pasted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them unknown</source>
        <translation>
            <numerusform>%n of them unknown</numerusform>
            <numerusform>%n of them unknown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n found</numerusform>
            <numerusform>%n found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Kiv_bomWindow</name>
    <message numerus="yes">
        <source>%n list(s)</source>
        <translation>
            <numerusform>%n list</numerusform>
            <numerusform>%n lists</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them built</source>
        <translation>
            <numerusform>%n of them built</numerusform>
            <numerusform>%n of them built</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) deleted</source>
        <translation>
            <numerusform>%n row deleted</numerusform>
            <numerusform>%n rows deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>all %n list(s)</source>
        <translation>
            <numerusform>%n list</numerusform>
            <numerusform>all %n lists</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected list(s)</source>
        <translation>
            <numerusform>%n selected list</numerusform>
            <numerusform>%n selected lists</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n difference</numerusform>
            <numerusform>%n differences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set(s)</source>
        <translation>
            <numerusform>%n set</numerusform>
            <numerusform>%n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stock reserved for %n board(s)</source>
        <translation>
            <numerusform>Stock reserved for %n board</numerusform>
            <numerusform>Stock reserved for %n boards</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Kiv_mat_databaseMergeWindow</name>
    <message numerus="yes">
        <source>%n material(s) differ</source>
        <translation>
            <numerusform>%n material differs</numerusform>
            <numerusform>%n materials differ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) taken over</source>
        <translation>
            <numerusform>%n material taken over</numerusform>
            <numerusform>%n materials taken over</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n difference(s) marked</source>
        <translation>
            <numerusform>%1 of %n difference marked</numerusform>
            <numerusform>%1 of %n differences marked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shown</source>
        <translation>
            <numerusform>%n shown</numerusform>
            <numerusform>%n shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n marked but not shown</source>
        <translation>
            <numerusform>%n marked but not shown</numerusform>
            <numerusform>%n marked but not shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filter hides marks of %n difference(s). What is to be taken over?</source>
        <translation>
            <numerusform>The filter hides marks of %n difference. What is to be taken over?</numerusform>
            <numerusform>The filter hides marks of %n differences. What is to be taken over?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Kiv_mat_databaseWindow</name>
    <message numerus="yes">
        <source>%n material(s) written to %1</source>
        <translation>
            <numerusform>%n material written to %1</numerusform>
            <numerusform>%n materials written to %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) checked</source>
        <translation>
            <numerusform>%n link checked</numerusform>
            <numerusform>%n links checked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n material(s) shown</source>
        <translation>
            <numerusform>%1 of %n material shown</numerusform>
            <numerusform>%1 of %n materials shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) copied</source>
        <translation>
            <numerusform>%n material copied</numerusform>
            <numerusform>%n materials copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) pasted</source>
        <translation>
            <numerusform>%n material pasted</numerusform>
            <numerusform>%n materials pasted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them need(s) a new KTM</source>
        <translation>
            <numerusform>%n of them needs a new KTM</numerusform>
            <numerusform>%n of them need a new KTM</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) deleted</source>
        <translation>
            <numerusform>%n material deleted</numerusform>
            <numerusform>%n materials deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) changed</source>
        <translation>
            <numerusform>%n material changed</numerusform>
            <numerusform>%n materials changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) attached to %1</source>
        <translation>
            <numerusform>%n file attached to %1</numerusform>
            <numerusform>%n files attached to %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) taken over</source>
        <translation>
            <numerusform>%n link taken over</numerusform>
            <numerusform>%n links taken over</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n group(s) with another CPV now</source>
        <translation>
            <numerusform>%n group with another CPV now</numerusform>
            <numerusform>%n groups with another CPV now</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n selected line(s), %1 PLN</source>
        <translation>
            <numerusform>%n selected line, %1 PLN</numerusform>
            <numerusform>%n selected lines, %1 PLN</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s), %1 PLN</source>
        <translation>
            <numerusform>%n line, %1 PLN</numerusform>
            <numerusform>%n lines, %1 PLN</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n database(s) archived</source>
        <translation>
            <numerusform>%n database archived</numerusform>
            <numerusform>%n databases archived</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected line(s)</source>
        <translation>
            <numerusform>%n selected line</numerusform>
            <numerusform>%n selected lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) copied</source>
        <translation>
            <numerusform>%n line copied</numerusform>
            <numerusform>%n lines copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) copied to %1</source>
        <translation>
            <numerusform>%n line copied to %1</numerusform>
            <numerusform>%n lines copied to %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) deleted</source>
        <translation>
            <numerusform>%n line deleted</numerusform>
            <numerusform>%n lines deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) added</source>
        <translation>
            <numerusform>%n line added</numerusform>
            <numerusform>%n lines added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) added or raised from BOM lists</source>
        <translation>
            <numerusform>%n line added or raised from BOM lists</numerusform>
            <numerusform>%n lines added or raised from BOM lists</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) skipped</source>
        <translation>
            <numerusform>%n material skipped</numerusform>
            <numerusform>%n materials skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) refused</source>
        <translation>
            <numerusform>%n material refused</numerusform>
            <numerusform>%n materials refused</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>order, %n line(s)</source>
        <translation>
            <numerusform>order, %n line</numerusform>
            <numerusform>order, %n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed record(s)</source>
        <translation>
            <numerusform>%n changed record</numerusform>
            <numerusform>%n changed records</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unsaved file(s) kept for the next start</source>
        <translation>
            <numerusform>%n unsaved file kept for the next start</numerusform>
            <numerusform>%n unsaved files kept for the next start</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n difference</numerusform>
            <numerusform>%n differences</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n price(s) of the last orders</source>
        <translation>
            <numerusform>%n price of the last order</numerusform>
            <numerusform>%n prices of the last orders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them on the way already</source>
        <translation>
            <numerusform>%n of them on the way already</numerusform>
            <numerusform>%n of them on the way already</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n CPV threshold(s) passed</source>
        <translation>
            <numerusform>%n CPV threshold passed</numerusform>
            <numerusform>%n CPV thresholds passed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) delivered</source>
        <translation>
            <numerusform>%n line delivered</numerusform>
            <numerusform>%n lines delivered</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them in part</source>
        <translation>
            <numerusform>%n of them in part</numerusform>
            <numerusform>%n of them in part</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n price(s) of offers</source>
        <translation>
            <numerusform>%n price of offers</numerusform>
            <numerusform>%n prices of offers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The update is in %1: %n file(s)</source>
        <translation>
            <numerusform>The update is in %1: %n file</numerusform>
            <numerusform>The update is in %1: %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shared file(s)</source>
        <translation>
            <numerusform>%n shared file</numerusform>
            <numerusform>%n shared files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>XmlValidator</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>addMaterialDialog</name>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>annualPlanReport</name>
    <message numerus="yes">
        <source>%n line(s) whose price or quantity is no number are not in the sums</source>
        <translation>
            <numerusform>%n line whose price or quantity is no number is not in the sums</numerusform>
            <numerusform>%n lines whose price or quantity is no number are not in the sums</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) with one for each firm in their place are not in the sums</source>
        <translation>
            <numerusform>%n order with one for each firm in its place is not in the sums</numerusform>
            <numerusform>%n orders with one for each firm in their place are not in the sums</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>annualPlanWindow</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s)</source>
        <translation>
            <numerusform>%n order</numerusform>
            <numerusform>%n orders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a CPV code</source>
        <translation>
            <numerusform>%n line without a CPV code</numerusform>
            <numerusform>%n lines without a CPV code</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>%n row copied</numerusform>
            <numerusform>%n rows copied</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>basketsDialog</name>
    <message numerus="yes">
        <source>%n line(s) with a remark</source>
        <translation>
            <numerusform>%n line with a remark</numerusform>
            <numerusform>%n lines with a remark</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n supplier</numerusform>
            <numerusform>%n suppliers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without a supplier</source>
        <translation>
            <numerusform>%n without a supplier</numerusform>
            <numerusform>%n without a supplier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n with a remark</source>
        <translation>
            <numerusform>%n with a remark</numerusform>
            <numerusform>%n with a remark</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) bought from %1</source>
        <translation>
            <numerusform>%n line bought from %1</numerusform>
            <numerusform>%n lines bought from %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replace %n file(s)</source>
        <translation>
            <numerusform>Replace %n file</numerusform>
            <numerusform>Replace %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) written into %1</source>
        <translation>
            <numerusform>%n file written into %1</numerusform>
            <numerusform>%n files written into %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a supplier are in none</source>
        <translation>
            <numerusform>%n line without a supplier is in none</numerusform>
            <numerusform>%n lines without a supplier are in none</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>boardStockDialog</name>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lacking in stock</source>
        <translation>
            <numerusform>%n lacking in stock</numerusform>
            <numerusform>%n lacking in stock</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in no database</source>
        <translation>
            <numerusform>%n in no database</numerusform>
            <numerusform>%n in no database</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a quantity</source>
        <translation>
            <numerusform>%n line without a quantity</numerusform>
            <numerusform>%n lines without a quantity</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>bomReport</name>
    <message numerus="yes">
        <source>%n set(s)</source>
        <translation>
            <numerusform>%n set</numerusform>
            <numerusform>%n sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>bulkEdit</name>
    <message numerus="yes">
        <source>The pattern has %n bracket(s), so that there is no %1</source>
        <translation>
            <numerusform>The pattern has %n bracket, so that there is no %1</numerusform>
            <numerusform>The pattern has %n brackets, so that there is no %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n KTM(s) of the lines are none of these materials&apos;</source>
        <translation>
            <numerusform>%n KTM of the lines is none of these materials&apos;</numerusform>
            <numerusform>%n KTMs of the lines are none of these materials&apos;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) for</source>
        <translation>
            <numerusform>%n line for</numerusform>
            <numerusform>%n lines for</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>bulkEditDialog</name>
    <message numerus="yes">
        <source>%n will change</source>
        <translation>
            <numerusform>%n will change</numerusform>
            <numerusform>%n will change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stay(s) as they are</source>
        <translation>
            <numerusform>%n stays as it is</numerusform>
            <numerusform>%n stay as they are</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n refused</numerusform>
            <numerusform>%n refused</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Without the rows left out %n more cannot be changed</source>
        <translation>
            <numerusform>Without the rows left out %n more cannot be changed</numerusform>
            <numerusform>Without the rows left out %n more cannot be changed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cellBlock</name>
    <message numerus="yes">
        <source>%n line(s) past the last row</source>
        <translation>
            <numerusform>%n line past the last row</numerusform>
            <numerusform>%n lines past the last row</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pasted line(s) go past the last row. Add rows for them?</source>
        <translation>
            <numerusform>%n pasted line goes past the last row. Add a row for it?</numerusform>
            <numerusform>%n pasted lines go past the last row. Add rows for them?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>changesDialog</name>
    <message numerus="yes">
        <source>%n change(s). What stays marked is taken over.</source>
        <translation>
            <numerusform>%n change. What stays marked is taken over.</numerusform>
            <numerusform>%n changes. What stays marked is taken over.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>cli</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) added or raised</source>
        <translation>
            <numerusform>%n line added or raised</numerusform>
            <numerusform>%n lines added or raised</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) skipped</source>
        <translation>
            <numerusform>%n material skipped</numerusform>
            <numerusform>%n materials skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>only %n set(s) were reserved</source>
        <translation>
            <numerusform>only %n set was reserved</numerusform>
            <numerusform>only %n sets were reserved</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>configWindow</name>
    <message numerus="yes">
        <source>%n version(s), %1 MB</source>
        <translation>
            <numerusform>%n version, %1 MB</numerusform>
            <numerusform>%n versions, %1 MB</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>data</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s) that are no UTF-8 were read as Windows-1250</source>
        <translation>
            <numerusform>%n byte that is no UTF-8 was read as Windows-1250</numerusform>
            <numerusform>%n bytes that are no UTF-8 were read as Windows-1250</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n character(s) that no file can hold were dropped</source>
        <translation>
            <numerusform>%n character that no file can hold was dropped</numerusform>
            <numerusform>%n characters that no file can hold were dropped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n set(s)</source>
        <translation>
            <numerusform>%n set</numerusform>
            <numerusform>%n sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>databaseFindings</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>databaseTree</name>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>deliveryDialog</name>
    <message numerus="yes">
        <source>%n line(s) of it</source>
        <translation>
            <numerusform>%n line came</numerusform>
            <numerusform>%n lines came</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to come</source>
        <translation>
            <numerusform>%n to come</numerusform>
            <numerusform>%n to come</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>droppedFiles</name>
    <message numerus="yes">
        <source>Attach %n file(s) to %1</source>
        <translation>
            <numerusform>Attach %n file to %1</numerusform>
            <numerusform>Attach %n files to %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>editWindow</name>
    <message numerus="yes">
        <source>%n cell(s) copied</source>
        <translation>
            <numerusform>%n cell copied</numerusform>
            <numerusform>%n cells copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) pasted</source>
        <translation>
            <numerusform>%n cell pasted</numerusform>
            <numerusform>%n cells pasted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) moved</source>
        <translation>
            <numerusform>%n line moved</numerusform>
            <numerusform>%n lines moved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored as it was %1, not saved: %n record(s)</source>
        <translation>
            <numerusform>Restored as it was %1, not saved: %n record</numerusform>
            <numerusform>Restored as it was %1, not saved: %n records</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) fetched</source>
        <translation>
            <numerusform>%n change fetched</numerusform>
            <numerusform>%n changes fetched</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sent</source>
        <translation>
            <numerusform>%n sent</numerusform>
            <numerusform>%n sent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) by others</source>
        <translation>
            <numerusform>%n change by others</numerusform>
            <numerusform>%n changes by others</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>exportChanges</name>
    <message numerus="yes">
        <source>%n table(s) added</source>
        <translation>
            <numerusform>%n table added</numerusform>
            <numerusform>%n tables added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) removed</source>
        <translation>
            <numerusform>%n table removed</numerusform>
            <numerusform>%n tables removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s) renamed</source>
        <translation>
            <numerusform>%n table renamed</numerusform>
            <numerusform>%n tables renamed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) added</source>
        <translation>
            <numerusform>%n material added</numerusform>
            <numerusform>%n materials added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) removed</source>
        <translation>
            <numerusform>%n material removed</numerusform>
            <numerusform>%n materials removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) changed</source>
        <translation>
            <numerusform>%n material changed</numerusform>
            <numerusform>%n materials changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) moved</source>
        <translation>
            <numerusform>%n material moved</numerusform>
            <numerusform>%n materials moved</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>findingsWindow</name>
    <message numerus="yes">
        <source>%n finding(s)</source>
        <translation>
            <numerusform>%n finding</numerusform>
            <numerusform>%n findings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n finding(s) shown</source>
        <translation>
            <numerusform>%1 of %n finding shown</numerusform>
            <numerusform>%1 of %n findings shown</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>%n row copied</numerusform>
            <numerusform>%n rows copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n BOM list(s) cannot be read</source>
        <translation>
            <numerusform>%n BOM list cannot be read</numerusform>
            <numerusform>%n BOM lists cannot be read</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>firmWindow</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n manufacturer(s)</source>
        <translation>
            <numerusform>%n manufacturer</numerusform>
            <numerusform>%n manufacturers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n supplier</numerusform>
            <numerusform>%n suppliers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename in %n place(s)</source>
        <translation>
            <numerusform>Rename in %n place</numerusform>
            <numerusform>Rename in %n places</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n firm(s) deleted</source>
        <translation>
            <numerusform>%n firm deleted</numerusform>
            <numerusform>%n firms deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n firm(s) merged into %1</source>
        <translation>
            <numerusform>%n firm merged into %1</numerusform>
            <numerusform>%n firms merged into %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>importOfferDialog</name>
    <message numerus="yes">
        <source>%n material(s) offered</source>
        <translation>
            <numerusform>%n material offered</numerusform>
            <numerusform>%n materials offered</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without a price</source>
        <translation>
            <numerusform>%n without a price</numerusform>
            <numerusform>%n without a price</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not named</source>
        <translation>
            <numerusform>%n not named</numerusform>
            <numerusform>%n not named</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n thing(s) keep the offer out</source>
        <translation>
            <numerusform>%n thing keeps the offer out</numerusform>
            <numerusform>%n things keep the offer out</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lineSums</name>
    <message numerus="yes">
        <source>%n line(s) without a readable quantity are left out</source>
        <translation>
            <numerusform>%n line without a readable quantity is left out</numerusform>
            <numerusform>%n lines without a readable quantity are left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a price are left out</source>
        <translation>
            <numerusform>%n line without a price is left out</numerusform>
            <numerusform>%n lines without a price are left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without an average price are left out</source>
        <translation>
            <numerusform>%n line without an average price is left out</numerusform>
            <numerusform>%n lines without an average price are left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) of unknown materials are left out</source>
        <translation>
            <numerusform>%n line of an unknown material is left out</numerusform>
            <numerusform>%n lines of unknown materials are left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) whose price is no number are left out</source>
        <translation>
            <numerusform>%n line whose price is no number is left out</numerusform>
            <numerusform>%n lines whose price is no number are left out</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>linksWindow</name>
    <message numerus="yes">
        <source>%n link(s)</source>
        <translation>
            <numerusform>%n link</numerusform>
            <numerusform>%n links</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All links were examined in the last %n day(s)</source>
        <translation>
            <numerusform>All links were examined in the last %n day</numerusform>
            <numerusform>All links were examined in the last %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) fetched</source>
        <translation>
            <numerusform>%n document fetched</numerusform>
            <numerusform>%n documents fetched</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) examined</source>
        <translation>
            <numerusform>%n link examined</numerusform>
            <numerusform>%n links examined</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not</source>
        <translation>
            <numerusform>%n not</numerusform>
            <numerusform>%n not</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link(s) changed in the database</source>
        <translation>
            <numerusform>%n link changed in the database</numerusform>
            <numerusform>%n links changed in the database</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>%n row copied</numerusform>
            <numerusform>%n rows copied</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>log</name>
    <message>
        <source>Remove file</source>
        <translation>Remove file </translation>
    </message>
    <message>
        <source>Remove directory</source>
        <translation>Remove directory </translation>
    </message>
    <message>
        <source>Open link</source>
        <translation>Open link </translation>
    </message>
    <message>
        <source>Load config file</source>
        <translation>Load config file </translation>
    </message>
    <message>
        <source>Clean after update</source>
        <translation>Clean after update</translation>
    </message>
    <message>
        <source>The program&apos;s folder cannot be written; working in </source>
        <translation>The program&apos;s folder cannot be written; working in </translation>
    </message>
    <message>
        <source>Copy file</source>
        <translation>Copy file </translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Open file </translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Save file </translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Print to file </translation>
    </message>
    <message>
        <source>File does not exist or corrupted</source>
        <translation>File does not exist or corrupted </translation>
    </message>
    <message>
        <source>Create default file</source>
        <translation>Create default file </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Not exists</source>
        <translation>Not exists</translation>
    </message>
    <message>
        <source>No font with Polish letters is installed </source>
        <translation>No font with Polish letters is installed </translation>
    </message>
    <message>
        <source>The settings cannot be written </source>
        <translation>The settings cannot be written </translation>
    </message>
    <message>
        <source>No backup could be written </source>
        <translation>No backup could be written </translation>
    </message>
    <message>
        <source>File corrupted</source>
        <translation>File corrupted </translation>
    </message>
    <message>
        <source>Temporary folder error</source>
        <translation>Temporary folder error </translation>
    </message>
    <message>
        <source>The file %1 cannot be written</source>
        <translation>The file %1 cannot be written</translation>
    </message>
    <message>
        <source>An update cannot replace </source>
        <translation>An update cannot replace </translation>
    </message>
</context>
<context>
    <name>materialWindow</name>
    <message numerus="yes">
        <source>%n manufacturer(s)</source>
        <translation>
            <numerusform>%n manufacturer</numerusform>
            <numerusform>%n manufacturers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n supplier(s)</source>
        <translation>
            <numerusform>%n supplier</numerusform>
            <numerusform>%n suppliers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>mergeDialog</name>
    <message numerus="yes">
        <source>%n difference(s). What only one changed is taken.</source>
        <translation>
            <numerusform>%n difference. What only one changed is taken.</numerusform>
            <numerusform>%n differences. What only one changed is taken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) changed by both: pick which to take.</source>
        <translation>
            <numerusform>%n row changed by both: pick which to take.</numerusform>
            <numerusform>%n rows changed by both: pick which to take.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>mergeFirmsDialog</name>
    <message numerus="yes">
        <source>%n material(s) get the name %1 when the list is saved.</source>
        <translation>
            <numerusform>%n material gets the name %1 when the list is saved.</numerusform>
            <numerusform>%n materials get the name %1 when the list is saved.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>mergeTree</name>
    <message numerus="yes">
        <source>%n field(s) differ</source>
        <translation>
            <numerusform>%n field differs</numerusform>
            <numerusform>%n fields differ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>needsDialog</name>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n short of stock</source>
        <translation>
            <numerusform>%n short of stock</numerusform>
            <numerusform>%n short of stock</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n in no database</source>
        <translation>
            <numerusform>%n in no database</numerusform>
            <numerusform>%n in no database</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to be ordered</source>
        <translation>
            <numerusform>%n to be ordered</numerusform>
            <numerusform>%n to be ordered</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n on the way already</source>
        <translation>
            <numerusform>%n on the way already</numerusform>
            <numerusform>%n on the way already</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>newRequestsDialog</name>
    <message numerus="yes">
        <source>%n firm(s)</source>
        <translation>
            <numerusform>%n firm</numerusform>
            <numerusform>%n firms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s)</source>
        <translation>
            <numerusform>%n material</numerusform>
            <numerusform>%n materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a quantity are left out</source>
        <translation>
            <numerusform>%n line without a quantity is left out</numerusform>
            <numerusform>%n lines without a quantity are left out</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>offerFirmRows</name>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>offerImport</name>
    <message numerus="yes">
        <source>%n more remark(s) of this kind</source>
        <translation>
            <numerusform>%n more remark of this kind</numerusform>
            <numerusform>%n more remarks of this kind</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>offerRows</name>
    <message numerus="yes">
        <source>%n day(s) until it comes</source>
        <translation>
            <numerusform>%n day until it comes</numerusform>
            <numerusform>%n days until it comes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>offersWindow</name>
    <message numerus="yes">
        <source>%n material(s) from nobody</source>
        <translation>
            <numerusform>%n material from nobody</numerusform>
            <numerusform>%n materials from nobody</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) without a quantity</source>
        <translation>
            <numerusform>%n line without a quantity</numerusform>
            <numerusform>%n lines without a quantity</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Offer of %1 taken in: %n material(s)</source>
        <translation>
            <numerusform>Offer of %1 taken in: %n material</numerusform>
            <numerusform>Offer of %1 taken in: %n materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n material(s) are not offered there</source>
        <translation>
            <numerusform>%n material is not offered there</numerusform>
            <numerusform>%n materials are not offered there</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %2, %n line(s)</source>
        <translation>
            <numerusform>%1: %2, %n line</numerusform>
            <numerusform>%1: %2, %n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) written</source>
        <translation>
            <numerusform>%n order written</numerusform>
            <numerusform>%n orders written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>%n row copied</numerusform>
            <numerusform>%n rows copied</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>OPTION_EDIT_ZP</source>
        <translation>Orders may be edited</translation>
    </message>
    <message>
        <source>OPTION_EDIT_CONFIG</source>
        <translation>Configuration may be edited</translation>
    </message>
    <message>
        <source>OPTION_EDIT_DATABASE</source>
        <translation>Material databases may be edited</translation>
    </message>
    <message>
        <source>OPTION_EDIT_FIRM</source>
        <translation>Firm register may be edited</translation>
    </message>
    <message>
        <source>OPTION_EMAIL_MAPI</source>
        <translation>E-mail through MAPI</translation>
    </message>
    <message>
        <source>OPTION_OPEN_REPORT_HTML</source>
        <translation>Open report files automatically</translation>
    </message>
    <message>
        <source>OPTION_FONT_NAME</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>OPTION_FONT_SIZE</source>
        <translation>Font size</translation>
    </message>
    <message>
        <source>OPTION_THRESHOLD_LOW</source>
        <translation>Low threshold [%]</translation>
    </message>
    <message>
        <source>OPTION_THRESHOLD_AVERAGE</source>
        <translation>Average threshold [%]</translation>
    </message>
    <message>
        <source>OPTION_THRESHOLD_HIGH</source>
        <translation>High threshold [%]</translation>
    </message>
    <message>
        <source>OPTION_ORDER_TARGET</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>OPTION_ORDER_DATE_ADD</source>
        <translation>Order completion term</translation>
    </message>
    <message>
        <source>OPTION_ORDER_NUMBER</source>
        <translation>Order number</translation>
    </message>
    <message>
        <source>OPTION_ORDER_DATE</source>
        <translation>Order date</translation>
    </message>
    <message>
        <source>OPTION_PERSON_AUTHOR</source>
        <translation>Author</translation>
    </message>
    <message>
        <source>OPTION_PERSON_APPROVED</source>
        <translation>Approved by</translation>
    </message>
    <message>
        <source>OPTION_PERSON_CONTRACTOR</source>
        <translation>Carried out by</translation>
    </message>
    <message>
        <source>OPTION_PERSON_ADMIN</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>OPTION_FILE_CONFIG</source>
        <translation>Configuration file</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_WAREHOUSE</source>
        <translation>Warehouse database file</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_SERVICE</source>
        <translation>Service database file</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_AUTHOR</source>
        <translation>Author&apos;s database file</translation>
    </message>
    <message>
        <source>OPTION_FILE_DB_MECHANICS</source>
        <translation>Mechanics database file</translation>
    </message>
    <message>
        <source>OPTION_FILE_FIRM</source>
        <translation>Firm register file</translation>
    </message>
    <message>
        <source>OPTION_FILE_BOMS</source>
        <translation>BOM set file</translation>
    </message>
    <message>
        <source>OPTION_FILE_NEWZP</source>
        <translation>New order file</translation>
    </message>
    <message>
        <source>OPTION_FILE_LASTZP</source>
        <translation>Last order file</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_WAREHOUSE</source>
        <translation>Load the warehouse database</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_SERVICE</source>
        <translation>Load the service database</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_AUTHOR</source>
        <translation>Load the author&apos;s database</translation>
    </message>
    <message>
        <source>OPTION_LOAD_DB_MECHANICS</source>
        <translation>Load the mechanics database</translation>
    </message>
    <message>
        <source>OPTION_LOAD_BOMS</source>
        <translation>Load the BOM set</translation>
    </message>
    <message>
        <source>OPTION_PATH_BACKUP</source>
        <translation>Backup folder</translation>
    </message>
    <message>
        <source>OPTION_SERVER_NAME</source>
        <translation>File server</translation>
    </message>
    <message>
        <source>OPTION_SERVER_USER_NAME</source>
        <translation>Server user name</translation>
    </message>
    <message>
        <source>OPTION_SERVER_USER_PASSWORD</source>
        <translation>Server user password</translation>
    </message>
    <message>
        <source>OPTION_BACKUP_COUNT</source>
        <translation>OPTION_BACKUP_COUNT </translation>
    </message>
    <message>
        <source>OPTION_LANGUAGE</source>
        <translation>OPTION_LANGUAGE </translation>
    </message>
    <message>
        <source>OPTION_ARCHIVE_PASSWORD</source>
        <translation>OPTION_ARCHIVE_PASSWORD </translation>
    </message>
    <message>
        <source>OPTION_BOM_ATTRITION</source>
        <translation>Attrition of parts (case: % at least)</translation>
    </message>
    <message>
        <source>OPTION_BOM_MULTIPLE</source>
        <translation>Order in multiples (unit: of how many)</translation>
    </message>
    <message>
        <source>OPTION_ORDERS_FOLDERS</source>
        <translation>Folders of orders</translation>
    </message>
    <message>
        <source>OPTION_ORDER_THRESHOLDS</source>
        <translation>Thresholds of purchases by CPV [PLN] (digits: amount)</translation>
    </message>
    <message>
        <source>OPTION_VAT_RATE</source>
        <translation>VAT in the order&apos;s report [%] (empty: none)</translation>
    </message>
    <message>
        <source>OPTION_UPDATE_ADDRESS</source>
        <translation>Address of updates</translation>
    </message>
    <message>
        <source>OPTION_UPDATE_UNSIGNED</source>
        <translation>Updates without a signature</translation>
    </message>
    <message>
        <source>OPTION_STORE_ADDRESS</source>
        <translation>Address of the shared store</translation>
    </message>
</context>
<context>
    <name>orders</name>
    <message numerus="yes">
        <source>%n line(s) without a price or a quantity are not in it</source>
        <translation>
            <numerusform>%n line without a price or a quantity is not in it</numerusform>
            <numerusform>%n lines without a price or a quantity are not in it</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ordersWindow</name>
    <message numerus="yes">
        <source>%n order(s)</source>
        <translation>
            <numerusform>%n order</numerusform>
            <numerusform>%n orders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) marked as sent</source>
        <translation>
            <numerusform>%n order marked as sent</numerusform>
            <numerusform>%n orders marked as sent</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) not sent any more</source>
        <translation>
            <numerusform>%n order not sent any more</numerusform>
            <numerusform>%n orders not sent any more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>%n row copied</numerusform>
            <numerusform>%n rows copied</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>partsColumnsPage</name>
    <message numerus="yes">
        <source>%1, %n row(s)</source>
        <translation>
            <numerusform>%1, %n row</numerusform>
            <numerusform>%1, %n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2, %n row(s)</source>
        <translation>
            <numerusform>%1, %2, %n row</numerusform>
            <numerusform>%1, %2, %n rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>repairOffer</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>replaceMaterialDialog</name>
    <message numerus="yes">
        <source>%n line(s)</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) to replace</source>
        <translation>
            <numerusform>%n line to replace</numerusform>
            <numerusform>%n lines to replace</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cannot be changed</source>
        <translation>
            <numerusform>%n cannot be changed</numerusform>
            <numerusform>%n cannot be changed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>requestsWindow</name>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>%n request</numerusform>
            <numerusform>%n requests</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n without an offer</source>
        <translation>
            <numerusform>%n without an offer</numerusform>
            <numerusform>%n without an offer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <translation>
            <numerusform>%n overdue</numerusform>
            <numerusform>%n overdue</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n message(s) handed to the mail program</source>
        <translation>
            <numerusform>%n message handed to the mail program</numerusform>
            <numerusform>%n messages handed to the mail program</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n only written</source>
        <translation>
            <numerusform>%n only written</numerusform>
            <numerusform>%n only written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied</source>
        <translation>
            <numerusform>%n row copied</numerusform>
            <numerusform>%n rows copied</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>reservationsDialog</name>
    <message numerus="yes">
        <source>%n board(s) reserved</source>
        <translation>
            <numerusform>%n board reserved</numerusform>
            <numerusform>%n boards reserved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n built</source>
        <translation>
            <numerusform>%n built</numerusform>
            <numerusform>%n built</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>stagedLinesModel</name>
    <message numerus="yes">
        <source>choose of %n</source>
        <translation>
            <numerusform>choose of %n</numerusform>
            <numerusform>choose of %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>storeAccess</name>
    <message numerus="yes">
        <source>%n record(s) are in the shared store</source>
        <translation>
            <numerusform>%n record is in the shared store</numerusform>
            <numerusform>%n records are in the shared store</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>typed</name>
    <message numerus="yes">
        <source>%1: at most %n decimal(s)</source>
        <translation>
            <numerusform>%1: at most %n decimal</numerusform>
            <numerusform>%1: at most %n decimals</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>updateWindow</name>
    <message numerus="yes">
        <source>%n BOM list(s)</source>
        <translation>
            <numerusform>%n BOM list</numerusform>
            <numerusform>%n BOM lists</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n order(s) with materials that change</source>
        <translation>
            <numerusform>%n order with materials that change</numerusform>
            <numerusform>%n orders with materials that change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of the program</source>
        <translation>
            <numerusform>%n file of the program</numerusform>
            <numerusform>%n files of the program</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message numerus="yes">
        <source>was changed here, and merged; %n text(s) stay yours</source>
        <translation>
            <numerusform>was changed here, and merged; %n text stays yours</numerusform>
            <numerusform>was changed here, and merged; %n texts stay yours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>versionsWindow</name>
    <message numerus="yes">
        <source>%n difference(s) from %1</source>
        <translation>
            <numerusform>%n difference from %1</numerusform>
            <numerusform>%n differences from %1</numerusform>
        </translation>
    </message>
</context>
</TS>
