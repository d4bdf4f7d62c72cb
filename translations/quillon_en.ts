<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_GB">
<context>
    <name>ActivityRow</name>
    <message>
        <source>Reveal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CountTexts</name>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln folders</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 error</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln errors</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put back %1</source>
        <comment>a file, or a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t put %1 back. It has moved or gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t put %1 back. They have moved or gone.</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put back %1, %2 couldn’t be</source>
        <comment>a number of files and a number</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DayStepper</name>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryLayout</name>
    <message>
        <source>Clean Up in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>a number of files and the rules that filed them</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting back… %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressBar</name>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TagDots</name>
    <message>
        <source>Tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeTexts</name>
    <message>
        <source>en_GB</source>
        <comment>the locale in whose language days and months are named</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d MMM</source>
        <comment>a day of this year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <comment>a day</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a day and a time of it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dddd d MMMM</source>
        <comment>a day of this year</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dddd d MMMM yyyy</source>
        <comment>a day</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>just now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n minutes ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on %1</source>
        <comment>a day</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at %1</source>
        <comment>a time of today</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tomorrow at %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>Use a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a date like 2026-10-14</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This pattern can’t be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::ActionListModel</name>
    <message>
        <source>Action %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For example %1</source>
        <comment>a file name</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2026-10-14 Amazon invoice £42.pdf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For example %1 → %2</source>
        <comment>the old and the new name of a file</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::ConditionListModel</name>
    <message>
        <source>a receipt or invoice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2026-10-14</source>
        <comment>an example of a date</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pdf</source>
        <comment>an example of a file extension</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>amazon.com</source>
        <comment>an example of a web site</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Condition %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>or</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::HistoryModel</name>
    <message>
        <source>All folders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::RuleDrafting</name>
    <message>
        <source>Check the rule before you save it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::RuleEditor</name>
    <message>
        <source>Discard your changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of these is true</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of these are true</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder for the files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder isn’t watched any more, so the rule can’t be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This rule has been deleted elsewhere. Saving adds it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This rule has been changed elsewhere. Saving replaces those changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save it all the same?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rule can’t be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin’s rule points outside your folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::RuleProbe</name>
    <message>
        <source>Counting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files in %1 now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catches %L1 of 1 file now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catches %L1 of %L2 files now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %L2 waiting for Dobbin</source>
        <comment>what a rule catches, and files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %L1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can’t be read: %2</source>
        <comment>a folder, and why</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
