<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL">
  <context>
    <name>LanguageView</name>
    <message>
      <source>English </source>
      <translation>אנגלית </translation>
    </message>
    <message>
      <source>Korean </source>
      <translation>קוריאנית </translation>
    </message>
  </context>
  <context>
    <name>MainWindow</name>
    <message>
      <source>Complete to Save Snapshot!</source>
      <translation>שמירת התמונה הושלמה!</translation>
    </message>
    <message>
      <source>Snapshot not saved:</source>
      <translation>התמונה לא נשמרה:</translation>
    </message>
  </context>
  <context>
    <name>MapView</name>
    <message>
      <source>The map cannot be shown: its page in the program is damaged.</source>
      <translation>לא ניתן להציג את המפה: דף המפה בתוכנה פגום.</translation>
    </message>
  </context>
  <context>
    <name>PlayControlView</name>
    <message>
      <source>Play / Pause</source>
      <translation>ניגון / השהיה</translation>
    </message>
    <message>
      <source>Stop</source>
      <translation>עצירה</translation>
    </message>
    <message>
      <source>Previous recording</source>
      <translation>ההקלטה הקודמת</translation>
    </message>
    <message>
      <source>Next recording</source>
      <translation>ההקלטה הבאה</translation>
    </message>
    <message>
      <source>Step back</source>
      <translation>צעד אחורה</translation>
    </message>
    <message>
      <source>Step forward</source>
      <translation>צעד קדימה</translation>
    </message>
    <message>
      <source>Step by five seconds or by one frame</source>
      <translation>צעד של חמש שניות או של פריים אחד</translation>
    </message>
    <message>
      <source>Snapshot</source>
      <translation>צילום תמונה</translation>
    </message>
    <message>
      <source>Delete recording</source>
      <translation>מחיקת הקלטה</translation>
    </message>
    <message>
      <source>Flip picture</source>
      <translation>היפוך תמונה</translation>
    </message>
    <message>
      <source>Sound on / off</source>
      <translation>הפעלת / השתקת קול</translation>
    </message>
    <message>
      <source>Volume</source>
      <translation>עוצמת קול</translation>
    </message>
    <message>
      <source>Sec</source>
      <translation>שנ׳</translation>
    </message>
    <message>
      <source>Frm</source>
      <translation>פריים</translation>
    </message>
  </context>
  <context>
    <name>QGuiApplication</name>
    <message>
      <source>QT_LAYOUT_DIRECTION</source>
      <translation>RTL</translation>
    </message>
  </context>
  <context>
    <name>SnapshotWriter</name>
    <message>
      <source>The camera showed no picture.</source>
      <translation>המצלמה לא הציגה תמונה.</translation>
    </message>
    <message>
      <source>The folder cannot be made.</source>
      <translation>לא ניתן ליצור את התיקייה.</translation>
    </message>
  </context>
  <context>
    <name>TavFileComboBox</name>
    <message>
      <source>  All Type</source>
      <translation>  כל הסוגים</translation>
    </message>
    <message>
      <source>  Filter</source>
      <translation>  סינון</translation>
    </message>
  </context>
  <context>
    <name>TavFileListItem</name>
    <message>
      <source>There is no item.</source>
      <translation>אין פריטים.</translation>
    </message>
    <message>
      <source>Item is exist!</source>
      <translation>הקובץ כבר ברשימה!</translation>
    </message>
    <message>
      <source>Item format is different with our service supproted!</source>
      <translation>תבנית הקובץ אינה נתמכת!</translation>
    </message>
    <message>
      <source>Do you want to delete the selected files at disk?</source>
      <translation>למחוק את הקבצים שנבחרו מהדיסק?</translation>
    </message>
    <message>
      <source>Do you want to delete the selected files at list?</source>
      <translation>למחוק את הקבצים שנבחרו מהרשימה?</translation>
    </message>
    <message>
      <source>This File is loading now.. Please try later</source>
      <translation>הקובץ נטען כעת. נסו שוב מאוחר יותר.</translation>
    </message>
    <message>
      <source>and %1 more</source>
      <translation>ועוד %1</translation>
    </message>
    <message>
      <source>These files could not be deleted:
%1</source>
      <translation>לא ניתן היה למחוק את הקבצים הבאים:
%1</translation>
    </message>
    <message>
      <source>  Delete at list</source>
      <translation>  מחיקה מהרשימה</translation>
    </message>
    <message>
      <source>  Delete from disk</source>
      <translation>  מחיקה מהדיסק</translation>
    </message>
    <message>
      <source>Reading lengths %v / %m</source>
      <translation>קריאת אורכים %v / %m</translation>
    </message>
    <message>
      <source>Open file</source>
      <translation>פתיחת קובץ</translation>
    </message>
    <message>
      <source>Movie file (*.avi *.mp4)</source>
      <translation>קובץ וידאו (*.avi *.mp4)</translation>
    </message>
    <message>
      <source>Open Folder</source>
      <translation>פתיחת תיקייה</translation>
    </message>
  </context>
  <context>
    <name>TavPrompt</name>
    <message>
      <source>Warning</source>
      <translation>אזהרה</translation>
    </message>
  </context>
  <context>
    <name>TavShortcutTable</name>
    <message>
      <source>Open files</source>
      <translation>פתיחת קבצים</translation>
    </message>
    <message>
      <source>Open folder</source>
      <translation>פתיחת תיקייה</translation>
    </message>
    <message>
      <source>Memory card</source>
      <translation>כרטיס זיכרון</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>הדפסה</translation>
    </message>
    <message>
      <source>Language</source>
      <translation>שפה</translation>
    </message>
    <message>
      <source>Capture</source>
      <translation>צילום מסך</translation>
    </message>
    <message>
      <source>Settings</source>
      <translation>הגדרות</translation>
    </message>
    <message>
      <source>About</source>
      <translation>אודות</translation>
    </message>
  </context>
  <context>
    <name>ui_agreementView</name>
    <message>
      <source>Privacy agreement</source>
      <translation>הסכם פרטיות</translation>
    </message>
    <message>
      <source>This viewer plays the recordings of your dash camera on this computer. It does not collect your recordings, locations or other personal information. With your permission it asks for new versions of the program and sends a report when it stops unexpectedly. You can use the viewer without either.</source>
      <translation>מציג זה מנגן במחשב זה את ההקלטות של מצלמת הרכב שלך. הוא אינו אוסף את ההקלטות, המיקומים או מידע אישי אחר שלך. באישורך הוא בודק אם קיימות גרסאות חדשות של התוכנה ושולח דוח כאשר היא נעצרת באופן בלתי צפוי. ניתן להשתמש במציג גם ללא שתי האפשרויות.</translation>
    </message>
    <message>
      <source>Check for updates</source>
      <translation>בדיקת עדכונים</translation>
    </message>
    <message>
      <source>Send crash reports automatically</source>
      <translation>שליחת דוחות קריסה באופן אוטומטי</translation>
    </message>
    <message>
      <source>Agree</source>
      <translation>מסכים</translation>
    </message>
    <message>
      <source>Disagree</source>
      <translation>לא מסכים</translation>
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
      <translation>שפה</translation>
    </message>
    <message>
      <source>Choose the language of the program</source>
      <translation>בחרו את שפת התוכנה</translation>
    </message>
    <message>
      <source>OK</source>
      <translation>אישור</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>ביטול</translation>
    </message>
  </context>
  <context>
    <name>ui_mainWindow</name>
    <message>
      <source>Recordings</source>
      <translation>הקלטות</translation>
    </message>
    <message>
      <source>Map</source>
      <translation>מפה</translation>
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
      <translation>רציף</translation>
    </message>
    <message>
      <source>Event</source>
      <translation>אירוע</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>חניה</translation>
    </message>
    <message>
      <source>User</source>
      <translation>ידני</translation>
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
      <translation>פתחו תיקיית הקלטות או גררו קבצים לכאן</translation>
    </message>
  </context>
</TS>
