<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL">
  <context>
    <name>ChannelChoices</name>
    <message>
      <source>No picture</source>
      <translation>אין תמונה</translation>
    </message>
  </context>
  <context>
    <name>FfmpegRunner</name>
    <message>
      <source>the file there cannot be moved aside.</source>
      <translation>לא ניתן להזיז את הקובץ שנמצא שם.</translation>
    </message>
    <message>
      <source>ffmpeg stopped unexpectedly.</source>
      <translation>ffmpeg נעצר באופן בלתי צפוי.</translation>
    </message>
    <message>
      <source>ffmpeg ended with code %1.</source>
      <translation>ffmpeg הסתיים עם קוד %1.</translation>
    </message>
    <message>
      <source>ffmpeg cannot be started: %1</source>
      <translation>לא ניתן להפעיל את ffmpeg: %1</translation>
    </message>
  </context>
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
      <source>Play a recording to print its report.</source>
      <translation>הפעל הקלטה כדי להדפיס את הדוח שלה.</translation>
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
    <name>PrintChannelSelectView</name>
    <message>
      <source>There is not selected channel!</source>
      <translation>לא נבחר ערוץ!</translation>
    </message>
  </context>
  <context>
    <name>PrintView</name>
    <message>
      <source>The file cannot be written there.</source>
      <translation>לא ניתן לכתוב את הקובץ שם.</translation>
    </message>
    <message>
      <source>The file there cannot be replaced.</source>
      <translation>לא ניתן להחליף את הקובץ שנמצא שם.</translation>
    </message>
    <message>
      <source>Save as PDF</source>
      <translation>שמירה כ-PDF</translation>
    </message>
    <message>
      <source>PDF (*.pdf)</source>
      <translation>PDF (*.pdf)</translation>
    </message>
    <message>
      <source>The report was not saved:</source>
      <translation>הדוח לא נשמר:</translation>
    </message>
    <message>
      <source>The report is saved:</source>
      <translation>הדוח נשמר:</translation>
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
    <name>ReportPage</name>
    <message>
      <source>FileName: </source>
      <translation>שם קובץ: </translation>
    </message>
    <message>
      <source>Date: </source>
      <translation>תאריך: </translation>
    </message>
    <message>
      <source>Model Name: </source>
      <translation>שם דגם: </translation>
    </message>
    <message>
      <source>GPS:</source>
      <translation>GPS:</translation>
    </message>
    <message>
      <source>Speed: </source>
      <translation>מהירות: </translation>
    </message>
    <message>
      <source>G-Senor: X:</source>
      <translation>חיישן G: X:</translation>
    </message>
    <message>
      <source>Memo: </source>
      <translation>הערה: </translation>
    </message>
    <message>
      <source>Report</source>
      <translation>דוח</translation>
    </message>
  </context>
  <context>
    <name>SaveAsView</name>
    <message>
      <source>There is no select channel</source>
      <translation>לא נבחר ערוץ</translation>
    </message>
    <message>
      <source>Search Folder</source>
      <translation>חיפוש תיקייה</translation>
    </message>
    <message>
      <source>File Setting</source>
      <translation>הגדרות קובץ</translation>
    </message>
    <message>
      <source>Choose Save Scene</source>
      <translation>בחירת סצנה לשמירה</translation>
    </message>
    <message>
      <source>Choose the folder to save to.</source>
      <translation>בחר את התיקייה לשמירה.</translation>
    </message>
    <message>
      <source>The folder %1 cannot be made.</source>
      <translation>לא ניתן ליצור את התיקייה %1.</translation>
    </message>
    <message>
      <source>Complete to Save Snapshot!</source>
      <translation>שמירת התמונה הושלמה!</translation>
    </message>
    <message>
      <source>Snapshot not saved:</source>
      <translation>התמונה לא נשמרה:</translation>
    </message>
    <message>
      <source>Saved:</source>
      <translation>נשמר:</translation>
    </message>
    <message>
      <source>The video cannot be saved: the ffmpeg program is missing. It belongs in %1 or on the PATH.</source>
      <translation>לא ניתן לשמור את הווידאו: התוכנה ffmpeg חסרה. מקומה ב-%1 או ב-PATH.</translation>
    </message>
    <message>
      <source>%1 is the recording itself. Choose another folder to save the video to.</source>
      <translation>%1 הוא ההקלטה עצמה. בחר תיקייה אחרת לשמירת הווידאו.</translation>
    </message>
    <message>
      <source>The files of the chosen cameras are not there any more.</source>
      <translation>הקבצים של המצלמות שנבחרו כבר אינם שם.</translation>
    </message>
    <message>
      <source>These files exist already:</source>
      <translation>הקבצים האלה כבר קיימים:</translation>
    </message>
    <message>
      <source>Replace them?</source>
      <translation>להחליף אותם?</translation>
    </message>
    <message>
      <source>Saving channel %1 of %2...</source>
      <translation>שומר ערוץ %1 מתוך %2...</translation>
    </message>
    <message>
      <source>Channel %1 has no file to save.</source>
      <translation>לערוץ %1 אין קובץ לשמירה.</translation>
    </message>
    <message>
      <source>Complete File Download!</source>
      <translation>הורדת הקובץ הושלמה!</translation>
    </message>
    <message>
      <source>The video was not saved.</source>
      <translation>הווידאו לא נשמר.</translation>
    </message>
    <message>
      <source>Saved before that:</source>
      <translation>נשמרו לפני כן:</translation>
    </message>
    <message>
      <source>Cancelled. The unfinished file was removed.</source>
      <translation>בוטל. הקובץ שלא הושלם נמחק.</translation>
    </message>
    <message>
      <source>The video is still being saved. Stop saving it?</source>
      <translation>הווידאו עדיין נשמר. להפסיק את השמירה?</translation>
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
    <name>ui_printChannelSelectView</name>
    <message>
      <source>Print</source>
      <translation>הדפסה</translation>
    </message>
    <message>
      <source>Choose the camera whose picture goes into the report</source>
      <translation>בחר את המצלמה שהתמונה שלה תיכנס לדוח</translation>
    </message>
    <message>
      <source>Channel 1</source>
      <translation>ערוץ 1</translation>
    </message>
    <message>
      <source>Channel 2</source>
      <translation>ערוץ 2</translation>
    </message>
    <message>
      <source>Channel 3</source>
      <translation>ערוץ 3</translation>
    </message>
    <message>
      <source>Channel 4</source>
      <translation>ערוץ 4</translation>
    </message>
    <message>
      <source>Channel 5</source>
      <translation>ערוץ 5</translation>
    </message>
    <message>
      <source>Next</source>
      <translation>הבא</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>ביטול</translation>
    </message>
  </context>
  <context>
    <name>ui_printView</name>
    <message>
      <source>Report</source>
      <translation>דוח</translation>
    </message>
    <message>
      <source>Memo</source>
      <translation>הערה</translation>
    </message>
    <message>
      <source>The memo is printed on the last line of the report.</source>
      <translation>ההערה מודפסת בשורה האחרונה של הדוח.</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>הדפסה</translation>
    </message>
    <message>
      <source>Save as PDF</source>
      <translation>שמירה כ-PDF</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>סגירה</translation>
    </message>
  </context>
  <context>
    <name>ui_saveAsView</name>
    <message>
      <source>Choose Save Scene</source>
      <translation>בחירת סצנה לשמירה</translation>
    </message>
    <message>
      <source>Choose the cameras to save</source>
      <translation>בחר את המצלמות לשמירה</translation>
    </message>
    <message>
      <source>Channel 1</source>
      <translation>ערוץ 1</translation>
    </message>
    <message>
      <source>Channel 2</source>
      <translation>ערוץ 2</translation>
    </message>
    <message>
      <source>Channel 3</source>
      <translation>ערוץ 3</translation>
    </message>
    <message>
      <source>Channel 4</source>
      <translation>ערוץ 4</translation>
    </message>
    <message>
      <source>Channel 5</source>
      <translation>ערוץ 5</translation>
    </message>
    <message>
      <source>Save Snapshot</source>
      <translation>שמירת תמונה</translation>
    </message>
    <message>
      <source>Save Video</source>
      <translation>שמירת וידאו</translation>
    </message>
    <message>
      <source>Save to this folder</source>
      <translation>שמירה בתיקייה זו</translation>
    </message>
    <message>
      <source>File type</source>
      <translation>סוג קובץ</translation>
    </message>
    <message>
      <source>MP4</source>
      <translation>MP4</translation>
    </message>
    <message>
      <source>AVI</source>
      <translation>AVI</translation>
    </message>
    <message>
      <source>Back</source>
      <translation>חזרה</translation>
    </message>
    <message>
      <source>Save</source>
      <translation>שמירה</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>ביטול</translation>
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
