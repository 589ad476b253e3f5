<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
  <context>
    <name>LanguageView</name>
    <message>
      <source>English </source>
      <translation>English </translation>
    </message>
    <message>
      <source>Korean </source>
      <translation>Korean </translation>
    </message>
  </context>
  <context>
    <name>MainWindow</name>
    <message>
      <source>Complete to Save Snapshot!</source>
      <translation>Complete to Save Snapshot!</translation>
    </message>
    <message>
      <source>Snapshot not saved:</source>
      <translation>Snapshot not saved:</translation>
    </message>
  </context>
  <context>
    <name>MapView</name>
    <message>
      <source>The map cannot be shown: its page in the program is damaged.</source>
      <translation>The map cannot be shown: its page in the program is damaged.</translation>
    </message>
  </context>
  <context>
    <name>PlayControlView</name>
    <message>
      <source>Play / Pause</source>
      <translation>Play / Pause</translation>
    </message>
    <message>
      <source>Stop</source>
      <translation>Stop</translation>
    </message>
    <message>
      <source>Previous recording</source>
      <translation>Previous recording</translation>
    </message>
    <message>
      <source>Next recording</source>
      <translation>Next recording</translation>
    </message>
    <message>
      <source>Step back</source>
      <translation>Step back</translation>
    </message>
    <message>
      <source>Step forward</source>
      <translation>Step forward</translation>
    </message>
    <message>
      <source>Step by five seconds or by one frame</source>
      <translation>Step by five seconds or by one frame</translation>
    </message>
    <message>
      <source>Snapshot</source>
      <translation>Snapshot</translation>
    </message>
    <message>
      <source>Delete recording</source>
      <translation>Delete recording</translation>
    </message>
    <message>
      <source>Flip picture</source>
      <translation>Flip picture</translation>
    </message>
    <message>
      <source>Sound on / off</source>
      <translation>Sound on / off</translation>
    </message>
    <message>
      <source>Volume</source>
      <translation>Volume</translation>
    </message>
    <message>
      <source>Sec</source>
      <translation>Sec</translation>
    </message>
    <message>
      <source>Frm</source>
      <translation>Frm</translation>
    </message>
  </context>
  <context>
    <name>SnapshotWriter</name>
    <message>
      <source>The camera showed no picture.</source>
      <translation>The camera showed no picture.</translation>
    </message>
    <message>
      <source>The folder cannot be made.</source>
      <translation>The folder cannot be made.</translation>
    </message>
  </context>
  <context>
    <name>TavFileComboBox</name>
    <message>
      <source>  All Type</source>
      <translation>  All Type</translation>
    </message>
    <message>
      <source>  Filter</source>
      <translation>  Filter</translation>
    </message>
  </context>
  <context>
    <name>TavFileListItem</name>
    <message>
      <source>There is no item.</source>
      <translation>There is no item.</translation>
    </message>
    <message>
      <source>Item is exist!</source>
      <translation>Item is exist!</translation>
    </message>
    <message>
      <source>Item format is different with our service supproted!</source>
      <translation>Item format is different with our service supproted!</translation>
    </message>
    <message>
      <source>Do you want to delete the selected files at disk?</source>
      <translation>Do you want to delete the selected files at disk?</translation>
    </message>
    <message>
      <source>Do you want to delete the selected files at list?</source>
      <translation>Do you want to delete the selected files at list?</translation>
    </message>
    <message>
      <source>This File is loading now.. Please try later</source>
      <translation>This File is loading now.. Please try later</translation>
    </message>
    <message>
      <source>and %1 more</source>
      <translation>and %1 more</translation>
    </message>
    <message>
      <source>These files could not be deleted:
%1</source>
      <translation>These files could not be deleted:
%1</translation>
    </message>
    <message>
      <source>  Delete at list</source>
      <translation>  Delete at list</translation>
    </message>
    <message>
      <source>  Delete from disk</source>
      <translation>  Delete from disk</translation>
    </message>
    <message>
      <source>Reading lengths %v / %m</source>
      <translation>Reading lengths %v / %m</translation>
    </message>
    <message>
      <source>Open file</source>
      <translation>Open file</translation>
    </message>
    <message>
      <source>Movie file (*.avi *.mp4)</source>
      <translation>Movie file (*.avi *.mp4)</translation>
    </message>
    <message>
      <source>Open Folder</source>
      <translation>Open Folder</translation>
    </message>
  </context>
  <context>
    <name>TavPrompt</name>
    <message>
      <source>Warning</source>
      <translation>Warning</translation>
    </message>
  </context>
  <context>
    <name>TavShortcutTable</name>
    <message>
      <source>Open files</source>
      <translation>Open files</translation>
    </message>
    <message>
      <source>Open folder</source>
      <translation>Open folder</translation>
    </message>
    <message>
      <source>Memory card</source>
      <translation>Memory card</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Print</translation>
    </message>
    <message>
      <source>Language</source>
      <translation>Language</translation>
    </message>
    <message>
      <source>Capture</source>
      <translation>Capture</translation>
    </message>
    <message>
      <source>Settings</source>
      <translation>Settings</translation>
    </message>
    <message>
      <source>About</source>
      <translation>About</translation>
    </message>
  </context>
  <context>
    <name>ui_agreementView</name>
    <message>
      <source>Privacy agreement</source>
      <translation>Privacy agreement</translation>
    </message>
    <message>
      <source>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</source>
      <translation>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</translation>
    </message>
    <message>
      <source>Check for updates</source>
      <translation>Check for updates</translation>
    </message>
    <message>
      <source>Send crash reports automatically</source>
      <translation>Send crash reports automatically</translation>
    </message>
    <message>
      <source>Agree</source>
      <translation>Agree</translation>
    </message>
    <message>
      <source>Disagree</source>
      <translation>Disagree</translation>
    </message>
  </context>
  <context>
    <name>ui_chartView</name>
    <message>
      <source>X</source>
      <translation>X</translation>
    </message>
    <message>
      <source>Y</source>
      <translation>Y</translation>
    </message>
    <message>
      <source>Z</source>
      <translation>Z</translation>
    </message>
  </context>
  <context>
    <name>ui_languageView</name>
    <message>
      <source>Language</source>
      <translation>Language</translation>
    </message>
    <message>
      <source>Choose the language of the program</source>
      <translation>Choose the language of the program</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>OK</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Cancel</translation>
    </message>
  </context>
  <context>
    <name>ui_mainWindow</name>
    <message>
      <source>Recordings</source>
      <translation>Recordings</translation>
    </message>
    <message>
      <source>Map</source>
      <translation>Map</translation>
    </message>
  </context>
  <context>
    <name>ui_playControlView</name>
    <message>
      <source>0.5x</source>
      <translation>0.5x</translation>
    </message>
    <message>
      <source>1x</source>
      <translation>1x</translation>
    </message>
    <message>
      <source>1.5x</source>
      <translation>1.5x</translation>
    </message>
    <message>
      <source>2x</source>
      <translation>2x</translation>
    </message>
  </context>
  <context>
    <name>ui_tavTypeList</name>
    <message>
      <source>Infinity</source>
      <translation>Infinity</translation>
    </message>
    <message>
      <source>Event</source>
      <translation>Event</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>Parking</translation>
    </message>
    <message>
      <source>User</source>
      <translation>User</translation>
    </message>
  </context>
  <context>
    <name>ui_topBar</name>
    <message>
      <source>tavoric</source>
      <translation>tavoric</translation>
    </message>
  </context>
  <context>
    <name>ui_waitPlayLogo</name>
    <message>
      <source>Open a folder of recordings or drop files here</source>
      <translation>Open a folder of recordings or drop files here</translation>
    </message>
  </context>
</TS>
