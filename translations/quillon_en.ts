<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="en_GB">
<context>
    <name>ActionRow</name>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a shortcut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no shortcuts in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file’s path is &quot;$1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
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
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddActionButton</name>
    <message>
        <source>Add Action</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchRow</name>
    <message>
        <source>open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop undoing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarPopup</name>
    <message>
        <source>Month before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month after</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatChange</name>
    <message>
        <source>Do it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatContent</name>
    <message>
        <source>Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask me where a file went, or what to tidy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatEntry</name>
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
    <name>ChatExample</name>
    <message>
        <source>Ask Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatField</name>
    <message>
        <source>Ask about your files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatRow</name>
    <message>
        <source>You: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatTurn</name>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin Settings…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatTurns</name>
    <message>
        <source>Conversation with Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin is thinking</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupFileList</name>
    <message>
        <source>Files to be tidied</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupFileRow</name>
    <message>
        <source>Reveal %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupOutcome</name>
    <message>
        <source>What was done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Want %1 to stay this way?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep it tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupProgress</name>
    <message>
        <source>Putting files of %1 back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidying %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupResult</name>
    <message>
        <source>%L1 moved to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 moved to %2</source>
        <comment>a number of files, a folder</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 unpacked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 sorted by kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped early</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is as it was</source>
        <comment>a folder</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is tidier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 filed</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 couldn’t be moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 left where they were</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 left alone because they changed meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>what was done</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupReview</name>
    <message>
        <source>Review every file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking through %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupSheet</name>
    <message>
        <source>Clean Up %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A one-off tidy. Nothing happens until you press Tidy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConditionRow</name>
    <message>
        <source>Attribute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
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
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln folders</source>
        <translation>
            <numerusform>%Ln folder</numerusform>
            <numerusform>%Ln folders</numerusform>
        </translation>
    </message>
    <message>
        <source>1 rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln rules</source>
        <translation>
            <numerusform>%Ln rule</numerusform>
            <numerusform>%Ln rules</numerusform>
        </translation>
    </message>
    <message>
        <source>1 entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
    <message>
        <source>1 error</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln errors</source>
        <translation>
            <numerusform>%Ln error</numerusform>
            <numerusform>%Ln errors</numerusform>
        </translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
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
    <name>DateField</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DayStepper</name>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DescribeBox</name>
    <message>
        <source>Describe with Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move PDFs with invoice in the name to Receipts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draft Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write what the rule should do first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin is thinking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin’s rule is ready, but you have changed this one meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use his</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin Settings…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorGrip</name>
    <message>
        <source>Move %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Up and Alt+Down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorRow</name>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FirstInstance</name>
    <message>
        <source>Quillon is running in the background and is still tidying. Open it again when it has finished, or end it first: quillon status shows what it does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quillon command is at work on your folders. Open Quillon again when it has finished.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderField</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderHeader</name>
    <message>
        <source>Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When to tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run %1 now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A one-off tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Enter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderList</name>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderMenu</name>
    <message>
        <source>When to tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include subfolders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only new files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip online-only files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Rules…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Rules…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderNames</name>
    <message>
        <source>The name of this folder isn’t valid UTF-8, so Quillon can’t use it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderStyles</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cloud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inbox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sky</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lagoon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Honey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slate</source>
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
    <name>HistoryList</name>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistorySheet</name>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File, rule or folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing here yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No entries match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo puts a file back where it was. If the name is taken, Quillon adds a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LookState</name>
    <message>
        <source>Quillon can’t read this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoFolders</name>
    <message>
        <source>Drop a folder here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a folder to begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads is a good first one. Quillon only looks in the folders you add.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoRules</name>
    <message>
        <source>No rules yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing in %1 moves until it has a rule. Start from a preset, or tell Dobbin what you’d like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Rule</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnDeviceRow</name>
    <message>
        <source>On-device model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop downloading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingDobbin</name>
    <message>
        <source>Meet Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin is your filing assistant. Describe a rule in a sentence, or ask him where a file went. Quillon tidies without him, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>He can use Claude instead: see Settings → Dobbin → Advanced.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingFolder</name>
    <message>
        <source>Watched already</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingFolders</name>
    <message>
        <source>Which folders should stay tidy?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon only ever looks in the folders you choose. Nothing moves until a folder has a rule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingHeading</name>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingPage</name>
    <message>
        <source>Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingPicture</name>
    <message>
        <source>Quillon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rules you can read, undo for every move.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingQuiet</name>
    <message>
        <source>Let it run by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon tidies while it’s open, from the tray. Both of these can be changed in Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notify me after tidying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One message per folder, such as “Filed 3 files.”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch Quillon at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So folders are tidied without you opening anything.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingWelcome</name>
    <message>
        <source>Welcome to Quillon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon keeps your folders tidy with rules written in plain English.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rules that read like sentences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If extension is “pdf” → Move to Receipts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look before anything moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview any folder, and tick every file before a Clean Up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo for every move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each change is kept in the activity list with its way back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatternField</name>
    <message>
        <source>Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopoverContent</name>
    <message>
        <source>Quillon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folders yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing tidied yet. New files will show up here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopoverEntries</name>
    <message>
        <source>Recent activity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopoverFolders</name>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run %1 now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopoverWindow</name>
    <message>
        <source>Quillon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetCard</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PresetsSheet</name>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready-made rules for %1. Change them however you like afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New rules go to the bottom of the list, where they run last.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewList</name>
    <message>
        <source>What would happen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewSheet</name>
    <message>
        <source>Nothing has been touched. This is only a preview.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that changed in the last few seconds are left to settle first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Now</source>
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
    <name>RecipeCard</name>
    <message>
        <source>Days, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecipeList</name>
    <message>
        <source>Recipes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleCard</name>
    <message>
        <source>Move %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Up and Alt+Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More for %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleEditorSheet</name>
    <message>
        <source>In %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If</source>
        <comment>what the conditions come after</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match</source>
        <comment>all, any or none of the conditions</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Condition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then</source>
        <comment>what the actions come after</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in this order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Enter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleList</name>
    <message>
        <source>Rules</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleListFooter</name>
    <message>
        <source>Recent activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything that was done in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing tidied yet. New files will show up here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleListHeader</name>
    <message>
        <source>Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run top to bottom. The first match wins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready-made rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a rule</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleMenu</name>
    <message>
        <source>Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RuleRemoval</name>
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
    <name>RunTexts</name>
    <message>
        <source>Couldn’t finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filed %1 in %2.</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filed %1 in %2, %3 couldn’t be.</source>
        <comment>a number of files, a folder and a number</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filed %1</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2 couldn’t be filed.</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin is thinking about %1 in %2.</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin is thinking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files that changed in the last few seconds are left to settle first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files are settling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already tidy.</source>
        <comment>a folder</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already tidy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDobbin</name>
    <message>
        <source>What Dobbin may do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read inside files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets “Dobbin says it” and “Rename with Dobbin” look at the text in PDFs, documents and pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suggest rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now and then, Dobbin spots something worth a rule.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Claude</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask Anthropic’s Claude instead. Questions, file names and any text Dobbin may read are sent to Anthropic.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting and renaming files use the cheaper Haiku.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Claude model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requests this month</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsGeneral</name>
    <message>
        <source>Quillon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Quillon in the Dock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When off, Quillon lives in the tray and its window opens from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Launch Quillon at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So folders are tidied without you opening anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notify me after tidying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One message per folder, such as “Filed 3 files.”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing runs by itself until you resume. You can still run a folder yourself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plain-text report of folders, rules and recent errors. Read it before you send it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Diagnostics…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to support, or see the website.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the first-run pages again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the introduction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reveal the report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsKey</name>
    <message>
        <source>API key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the API key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the API key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Claude API key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste your Claude API key here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get a key from Anthropic</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a folder to keep tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidebarRow</name>
    <message>
        <source>Copy “%1” here</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SuggestionCard</name>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don’t suggest %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SuggestionRows</name>
    <message>
        <source>Dobbin noticed</source>
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
        <translation>
            <numerusform>%n minute ago</numerusform>
            <numerusform>%n minutes ago</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n hours ago</source>
        <translation>
            <numerusform>%n hour ago</numerusform>
            <numerusform>%n hours ago</numerusform>
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
        <source>tomorrow at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at %1</source>
        <comment>a time soon</comment>
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
    <name>WindowButtons</name>
    <message>
        <source>Minimise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
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
    <name>quillon::CalendarMonth</name>
    <message>
        <source>%1 %2</source>
        <comment>a month and its year</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::ChatModel</name>
    <message>
        <source>On this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no longer watched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What can you do?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What did you tidy today?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where did my latest download go?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How do I undo something?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The conversation can’t be saved (%1). The next question tries again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::ClaudeSettings</name>
    <message>
        <source>Key ending %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your keyring is locked. Unlock it to use Claude.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved in your keyring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until it&apos;s saved, Dobbin keeps using %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It’s checked first, and kept in your keyring.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key saved. Dobbin is now using Claude.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key saved. Switch on Use Claude for Dobbin to use it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::CleanupFileModel</name>
    <message>
        <source>%1 · %2</source>
        <comment>a number of files, their size</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 of %L2 · %3</source>
        <comment>files that are ticked, all, the size of the ticked</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last opened %1</source>
        <comment>a day</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last changed %1</source>
        <comment>a day</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::CleanupModel</name>
    <message>
        <source>Turn these recipes into rules. The ones you left unticked are added switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%L1 of %2</source>
        <comment>files done, and files in all</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting back… %1</source>
        <comment>such as 3 of 36 files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidying… %1</source>
        <comment>such as 23 of 37 files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what became of a folder, and of its files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a rule for each recipe already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 added to %2.</source>
        <comment>a number of rules, a folder</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::CleanupReview</name>
    <message>
        <source>Counting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already tidy. Nothing matches these recipes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick a recipe to see its files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is already tidy. Nothing matches the recipes that are ticked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files ticked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ticked · %2</source>
        <comment>a number of files, their size</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpacking archives can’t be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can undo all of it afterwards.</source>
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
    <message>
        <source>day</source>
        <comment>after a number of days</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>days</source>
        <comment>after a number of days</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::EntryCommands</name>
    <message>
        <source>%1; %2</source>
        <comment>“Put back a.txt”, and a clause</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn’t put %1 back: %2</source>
        <comment>a file, and why</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::FolderListModel</name>
    <message>
        <source>Choose a folder to keep tidy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 isn’t a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is watched already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your files stay where they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its rule goes too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its %1 go too.</source>
        <comment>a number of rules</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop watching %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where is %1 now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied “%1” to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access blocked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::FolderPage</name>
    <message>
        <source>%1 can’t be found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon isn’t allowed to read %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a file of rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That file isn’t a list of Quillon rules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 added from a file</source>
        <comment>a number of rules</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the rules of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rules.json</source>
        <comment>a file name</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 exported</source>
        <comment>a number of rules</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidying…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tidied %1</source>
        <comment>when, as “4 minutes ago”</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon can’t save your changes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused — nothing runs automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 couldn’t be filed today</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be watched live, so Quillon checks it every few minutes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::HistoryModel</name>
    <message>
        <source>All folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The newest %Ln entries, across every folder</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>quillon::OnDeviceCard</name>
    <message>
        <source>Downloading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs a model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting the download…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 % of %2. Dobbin will be ready soon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download %1 to this computer? It takes a few gigabytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the model on this computer…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free and private. Dobbin uses it whenever Claude is off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The on-device model isn’t running on this computer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dobbin needs a one-off download before he can help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the on-device model</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::OnboardingModel</name>
    <message>
        <source>Get Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch 1 Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Watch %n Folders</source>
        <translation>
            <numerusform>Watch %n Folder</numerusform>
            <numerusform>Watch %n Folders</numerusform>
        </translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quillon isn’t allowed to read %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This isn’t a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a folder to keep tidy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::PopoverModel</name>
    <message>
        <source>1 folder needs a look</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n folders need a look</source>
        <translation>
            <numerusform>%n folder needs a look</numerusform>
            <numerusform>%n folders need a look</numerusform>
        </translation>
    </message>
    <message>
        <source>Something went wrong lately</source>
        <comment>with a folder that is not watched any more</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to tidy yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused — nothing runs automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything is in order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <comment>what else there is to say</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tidying…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access blocked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next in a moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next %1</source>
        <comment>when, as “at 10:00”</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::PreviewModel</name>
    <message>
        <source>What would happen in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking %1…</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking %1…</source>
        <comment>a folder</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files match.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file would be left alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is waiting for Dobbin.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change. There are no files to check in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change yet. Dobbin has to look at %1 first.</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change. No rule matches this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing would change. No rule matches these %1.</source>
        <comment>a number of files</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would change %L1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left alone %L1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for Dobbin %L1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule %1, %2: %3</source>
        <comment>a number, a name, what happens</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for Dobbin</source>
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
        <source>New rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit rule</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::RuleListModel</name>
    <message>
        <source>Rule %1 of %2</source>
        <comment>of a list</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, on</source>
        <comment>“Rule 2 of 4”, switched on</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, off</source>
        <comment>“Rule 2 of 4”, switched off</comment>
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
<context>
    <name>quillon::SettingsModel</name>
    <message>
        <source>Quillon %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Diagnostics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report can’t be written to %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::SuggestionListModel</name>
    <message>
        <source>Takes %1 at once. Undo reaches back over %L2 only.</source>
        <comment>a number of files, and of entries</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That can’t be remembered: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>quillon::TrayPresenter</name>
    <message>
        <source>Paused — nothing runs automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Something needs a look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Quillon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Quillon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
