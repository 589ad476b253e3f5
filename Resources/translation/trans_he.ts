<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he_IL">
  <context>
    <name>CardSession</name>
    <message>
      <source>The memory card was removed.</source>
      <translation>כרטיס הזיכרון הוצא.</translation>
    </message>
  </context>
  <context>
    <name>ChannelChoices</name>
    <message>
      <source>No picture</source>
      <translation>אין תמונה</translation>
    </message>
  </context>
  <context>
    <name>ConfigAccess</name>
    <message>
      <source>Error is occured!</source>
      <translation>אירעה שגיאה!</translation>
    </message>
    <message>
      <source>This model is not supported!</source>
      <translation>דגם זה אינו נתמך!</translation>
    </message>
    <message>
      <source>checksum is different!</source>
      <translation>סכום הביקורת שונה!</translation>
    </message>
    <message>
      <source>Setting file is not exist!</source>
      <translation>קובץ ההגדרות אינו קיים!</translation>
    </message>
    <message>
      <source>This model is not support!</source>
      <translation>דגם זה אינו נתמך!</translation>
    </message>
    <message>
      <source>The settings were not written: the SD card is not the one that was opened.</source>
      <translation>ההגדרות לא נכתבו: כרטיס ה-SD אינו הכרטיס שנפתח.</translation>
    </message>
    <message>
      <source>The settings could not be written to the SD card, and its previous settings could not be put back.</source>
      <translation>לא ניתן היה לכתוב את ההגדרות לכרטיס ה-SD, וגם לא ניתן היה להחזיר את ההגדרות הקודמות.</translation>
    </message>
    <message>
      <source>The settings could not be written to the SD card. Its previous settings are kept.</source>
      <translation>לא ניתן היה לכתוב את ההגדרות לכרטיס ה-SD. ההגדרות הקודמות נשמרו.</translation>
    </message>
    <message>
      <source>Fail to format SDCard!</source>
      <translation>אתחול כרטיס ה-SD נכשל!</translation>
    </message>
  </context>
  <context>
    <name>DriveListView</name>
    <message>
      <source>Recordings: %1</source>
      <translation>הקלטות: %1</translation>
    </message>
    <message>
      <source>Incidents: %1</source>
      <translation>אירועים: %1</translation>
    </message>
    <message>
      <source>Incidents: reading</source>
      <translation>אירועים: בקריאה</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>חניה</translation>
    </message>
    <message>
      <source>Drive</source>
      <translation>נסיעה</translation>
    </message>
  </context>
  <context>
    <name>ExportSession</name>
    <message>
      <source>Play a recording to print its report.</source>
      <translation>הפעל הקלטה כדי להדפיס את הדוח שלה.</translation>
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
    <name>FileFormatThread</name>
    <message>
      <source>The SD card was not formatted: its configuration could not be saved.</source>
      <translation>כרטיס ה-SD לא אותחל: לא ניתן היה לשמור את התצורה שלו.</translation>
    </message>
    <message>
      <source>The configuration could not be put back on the SD card.</source>
      <translation>לא ניתן היה להחזיר את התצורה לכרטיס ה-SD.</translation>
    </message>
    <message>
      <source>The configuration could not be put back on the SD card. It is kept in %1.</source>
      <translation>לא ניתן היה להחזיר את התצורה לכרטיס ה-SD. היא שמורה ב-%1.</translation>
    </message>
    <message>
      <source>The SD card is not the one that was opened, or it is no longer mounted. Nothing on it was changed.</source>
      <translation>כרטיס ה-SD אינו הכרטיס שנפתח, או שאינו מחובר עוד. דבר לא שונה בו.</translation>
    </message>
    <message>
      <source>The SD card is no longer mounted. Nothing on it was changed.</source>
      <translation>כרטיס ה-SD אינו מחובר עוד. דבר לא שונה בו.</translation>
    </message>
    <message>
      <source>You have no permission to format %1. Nothing on the SD card was changed.</source>
      <translation>אין לך הרשאה לאתחל את %1. דבר לא שונה בכרטיס ה-SD.</translation>
    </message>
    <message>
      <source>The SD card could not be unmounted (%1). Nothing on it was changed.</source>
      <translation>לא ניתן היה לנתק את כרטיס ה-SD (%1). דבר לא שונה בו.</translation>
    </message>
    <message>
      <source>The formatter %1 could not be started. Nothing on the SD card was changed.</source>
      <translation>לא ניתן היה להפעיל את תוכנית האתחול %1. דבר לא שונה בכרטיס ה-SD.</translation>
    </message>
    <message>
      <source>The formatter failed with exit code %1.</source>
      <translation>תוכנית האתחול נכשלה עם קוד יציאה %1.</translation>
    </message>
  </context>
  <context>
    <name>Incident</name>
    <message>
      <source>Harsh braking</source>
      <translation>בלימה חדה</translation>
    </message>
    <message>
      <source>Harsh acceleration</source>
      <translation>האצה חדה</translation>
    </message>
    <message>
      <source>Sharp turn</source>
      <translation>פנייה חדה</translation>
    </message>
    <message>
      <source>Impact</source>
      <translation>מכה</translation>
    </message>
    <message>
      <source>Camera event</source>
      <translation>אירוע מצלמה</translation>
    </message>
  </context>
  <context>
    <name>IncidentListView</name>
    <message>
      <source>The camera recorded this moment as an event.</source>
      <translation>המצלמה הקליטה את הרגע הזה כאירוע.</translation>
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
    <name>RecordingName</name>
    <message>
      <source>The file is empty.</source>
      <translation>הקובץ ריק.</translation>
    </message>
    <message>
      <source>The file is not a video recording.</source>
      <translation>הקובץ אינו הקלטת וידאו.</translation>
    </message>
    <message>
      <source>The recording is damaged or was cut off (for example by a power loss) and cannot be opened.</source>
      <translation>ההקלטה פגומה או נקטעה (למשל בהפסקת חשמל) ולא ניתן לפתוח אותה.</translation>
    </message>
    <message>
      <source>The file holds no picture.</source>
      <translation>אין תמונה בקובץ.</translation>
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
    <name>SDCardView</name>
    <message>
      <source>Drive</source>
      <translation>כונן</translation>
    </message>
    <message>
      <source>Name</source>
      <translation>שם</translation>
    </message>
    <message>
      <source>Total</source>
      <translation>סך הכול</translation>
    </message>
    <message>
      <source>Used</source>
      <translation>בשימוש</translation>
    </message>
    <message>
      <source>Free</source>
      <translation>פנוי</translation>
    </message>
    <message>
      <source>SD Card is not selected!</source>
      <translation>לא נבחר כרטיס SD!</translation>
    </message>
    <message>
      <source>SD Card is not connected!</source>
      <translation>כרטיס SD אינו מחובר!</translation>
    </message>
    <message>
      <source>SD Card is Empty!</source>
      <translation>כרטיס ה-SD ריק!</translation>
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
    <name>ServiceRequest</name>
    <message>
      <source>Asking the service...</source>
      <translation>שואל את השירות...</translation>
    </message>
    <message>
      <source>The service for updates and reports is not working.</source>
      <translation>שירות העדכונים והדוחות אינו פועל.</translation>
    </message>
    <message>
      <source>The service for updates and reports does not use the network now.</source>
      <translation>שירות העדכונים והדוחות אינו משתמש כעת ברשת.</translation>
    </message>
    <message>
      <source>The service for updates and reports did not answer.</source>
      <translation>שירות העדכונים והדוחות לא ענה.</translation>
    </message>
    <message>
      <source>The connection to the service for updates and reports was lost.</source>
      <translation>החיבור לשירות העדכונים והדוחות אבד.</translation>
    </message>
    <message>
      <source>Check your Network state</source>
      <translation>בדקו את מצב הרשת</translation>
    </message>
    <message>
      <source>DownLoad Fail</source>
      <translation>ההורדה נכשלה</translation>
    </message>
  </context>
  <context>
    <name>ServiceSession</name>
    <message>
      <source>Update Message</source>
      <translation>הודעת עדכון</translation>
    </message>
    <message>
      <source>find Update Version</source>
      <translation>נמצאה גרסה חדשה</translation>
    </message>
    <message>
      <source>Would you like to download now?</source>
      <translation>להוריד אותה עכשיו?</translation>
    </message>
    <message>
      <source>The new version has been downloaded. The program closes now so that it can be installed.</source>
      <translation>הגרסה החדשה הורדה. התוכנה נסגרת עכשיו כדי שאפשר יהיה להתקין אותה.</translation>
    </message>
  </context>
  <context>
    <name>SettingOpt</name>
    <message>
      <source>Automatic Crash Reports</source>
      <translation>דוחות קריסה אוטומטיים</translation>
    </message>
    <message>
      <source>After the program ended unexpectedly, the service sends its status log without asking.</source>
      <translation>אחרי שהתוכנה נסגרה באופן בלתי צפוי, השירות שולח את יומן המצב שלה בלי לשאול.</translation>
    </message>
    <message>
      <source>Send a Crash Report</source>
      <translation>שליחת דוח קריסה</translation>
    </message>
    <message>
      <source>Send Now</source>
      <translation>שליחה עכשיו</translation>
    </message>
    <message>
      <source>Language</source>
      <translation>שפה</translation>
    </message>
    <message>
      <source>Speed Unit</source>
      <translation>יחידת מהירות</translation>
    </message>
    <message>
      <source>Keep Settings</source>
      <translation>שמירת ההגדרות</translation>
    </message>
    <message>
      <source>Drive Gap</source>
      <translation>מרווח נסיעה</translation>
    </message>
    <message>
      <source>Incident Thresholds</source>
      <translation>ספי אירועים</translation>
    </message>
    <message>
      <source>Save the window, language, sound and folders when the program closes.</source>
      <translation>שמירת החלון, השפה, הצליל והתיקיות כשהתוכנה נסגרת.</translation>
    </message>
    <message>
      <source>Recordings closer than this make one drive.</source>
      <translation>הקלטות קרובות מזה הן נסיעה אחת.</translation>
    </message>
    <message>
      <source>Of the published thresholds: lower finds more incidents, higher fewer.</source>
      <translation>מהספים שפורסמו: נמוך יותר מוצא יותר אירועים, גבוה יותר פחות.</translation>
    </message>
    <message>
      <source>Snapshot Folder</source>
      <translation>תיקיית צילומי מסך</translation>
    </message>
    <message>
      <source>Change</source>
      <translation>שינוי</translation>
    </message>
    <message>
      <source>Video Folder</source>
      <translation>תיקיית וידאו</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>איפוס התוכנה</translation>
    </message>
    <message>
      <source>Program Version</source>
      <translation>גרסת התוכנה</translation>
    </message>
    <message>
      <source>Check for Updates at Start</source>
      <translation>בדיקת עדכונים בהפעלה</translation>
    </message>
    <message>
      <source>Each start asks the service whether a newer version is out.</source>
      <translation>בכל הפעלה נשאל השירות אם יצאה גרסה חדשה יותר.</translation>
    </message>
    <message>
      <source>Newer Version</source>
      <translation>גרסה חדשה יותר</translation>
    </message>
    <message>
      <source>Update Now</source>
      <translation>עדכון עכשיו</translation>
    </message>
    <message>
      <source>Camera</source>
      <translation>מצלמה</translation>
    </message>
    <message>
      <source>Front Resolution</source>
      <translation>רזולוציה קדמית</translation>
    </message>
    <message>
      <source>1080p FHD</source>
      <translation>1080p FHD</translation>
    </message>
    <message>
      <source>1440p QHD</source>
      <translation>1440p QHD</translation>
    </message>
    <message>
      <source>Rear Resolution</source>
      <translation>רזולוציה אחורית</translation>
    </message>
    <message>
      <source>720p HD</source>
      <translation>720p HD</translation>
    </message>
    <message>
      <source>Frame Rate</source>
      <translation>קצב פריימים</translation>
    </message>
    <message>
      <source>30 fps</source>
      <translation>30 fps</translation>
    </message>
    <message>
      <source>60 fps</source>
      <translation>60 fps</translation>
    </message>
    <message>
      <source>Exposure</source>
      <translation>חשיפה</translation>
    </message>
    <message>
      <source>Video Bitrate</source>
      <translation>קצב סיביות וידאו</translation>
    </message>
    <message>
      <source>A higher bitrate keeps more detail and fits less time on the card.</source>
      <translation>קצב סיביות גבוה שומר יותר פרטים ומאפשר פחות זמן הקלטה בכרטיס.</translation>
    </message>
    <message>
      <source>Low</source>
      <translation>נמוך</translation>
    </message>
    <message>
      <source>Normal</source>
      <translation>רגיל</translation>
    </message>
    <message>
      <source>High</source>
      <translation>גבוה</translation>
    </message>
    <message>
      <source>Record Audio</source>
      <translation>הקלטת שמע</translation>
    </message>
    <message>
      <source>Off</source>
      <translation>כבוי</translation>
    </message>
    <message>
      <source>On</source>
      <translation>פועל</translation>
    </message>
    <message>
      <source>Date Stamp</source>
      <translation>חותמת תאריך</translation>
    </message>
    <message>
      <source>Speed Stamp</source>
      <translation>חותמת מהירות</translation>
    </message>
    <message>
      <source>Rear Camera Mirror</source>
      <translation>היפוך מצלמה אחורית</translation>
    </message>
    <message>
      <source>Battery Protection</source>
      <translation>הגנת מצבר</translation>
    </message>
    <message>
      <source>Parking Mode</source>
      <translation>מצב חניה</translation>
    </message>
    <message>
      <source>Impact only</source>
      <translation>פגיעה בלבד</translation>
    </message>
    <message>
      <source>Motion and impact</source>
      <translation>תנועה ופגיעה</translation>
    </message>
    <message>
      <source>Time lapse</source>
      <translation>צילום בהילוך מהיר</translation>
    </message>
    <message>
      <source>Low Voltage Cut-off</source>
      <translation>ניתוק במתח נמוך</translation>
    </message>
    <message>
      <source>Stops recording before the car battery runs too low to start the engine.</source>
      <translation>עוצר את ההקלטה לפני שמצבר הרכב נחלש מכדי להניע את המנוע.</translation>
    </message>
    <message>
      <source>Cut-off Voltage</source>
      <translation>מתח ניתוק</translation>
    </message>
    <message>
      <source>11.8V</source>
      <translation>11.8V</translation>
    </message>
    <message>
      <source>12.0V</source>
      <translation>12.0V</translation>
    </message>
    <message>
      <source>12.2V</source>
      <translation>12.2V</translation>
    </message>
    <message>
      <source>12.4V</source>
      <translation>12.4V</translation>
    </message>
    <message>
      <source>Parking Timer</source>
      <translation>קוצב זמן חניה</translation>
    </message>
    <message>
      <source>6 h</source>
      <translation>6 שעות</translation>
    </message>
    <message>
      <source>12 h</source>
      <translation>12 שעות</translation>
    </message>
    <message>
      <source>24 h</source>
      <translation>24 שעות</translation>
    </message>
    <message>
      <source>48 h</source>
      <translation>48 שעות</translation>
    </message>
    <message>
      <source>Memory</source>
      <translation>זיכרון</translation>
    </message>
    <message>
      <source>Memory Allocation</source>
      <translation>הקצאת זיכרון</translation>
    </message>
    <message>
      <source>Changing it formats the memory card.</source>
      <translation>שינוי ההגדרה מאתחל את כרטיס הזיכרון.</translation>
    </message>
    <message>
      <source>Driving priority</source>
      <translation>עדיפות לנסיעה</translation>
    </message>
    <message>
      <source>Event priority</source>
      <translation>עדיפות לאירועים</translation>
    </message>
    <message>
      <source>Parking priority</source>
      <translation>עדיפות לחניה</translation>
    </message>
    <message>
      <source>Driving only</source>
      <translation>נסיעה בלבד</translation>
    </message>
    <message>
      <source>Overwrite Events</source>
      <translation>דריסת אירועים</translation>
    </message>
    <message>
      <source>Recording Length</source>
      <translation>אורך הקלטה</translation>
    </message>
    <message>
      <source>1 min</source>
      <translation>דקה</translation>
    </message>
    <message>
      <source>2 min</source>
      <translation>2 דקות</translation>
    </message>
    <message>
      <source>3 min</source>
      <translation>3 דקות</translation>
    </message>
    <message>
      <source>Sensitive</source>
      <translation>רגישות</translation>
    </message>
    <message>
      <source>Driving Impact Sensitivity</source>
      <translation>רגישות לפגיעה בנסיעה</translation>
    </message>
    <message>
      <source>Lowest</source>
      <translation>הנמוך ביותר</translation>
    </message>
    <message>
      <source>Middle</source>
      <translation>בינוני</translation>
    </message>
    <message>
      <source>Highest</source>
      <translation>הגבוה ביותר</translation>
    </message>
    <message>
      <source>Parking Impact Sensitivity</source>
      <translation>רגישות לפגיעה בחניה</translation>
    </message>
    <message>
      <source>Motion Detection Sensitivity</source>
      <translation>רגישות לזיהוי תנועה</translation>
    </message>
    <message>
      <source>System</source>
      <translation>מערכת</translation>
    </message>
    <message>
      <source>Time Zone</source>
      <translation>אזור זמן</translation>
    </message>
    <message>
      <source>UTC-12:00</source>
      <translation>UTC-12:00</translation>
    </message>
    <message>
      <source>UTC-11:00</source>
      <translation>UTC-11:00</translation>
    </message>
    <message>
      <source>UTC-10:00</source>
      <translation>UTC-10:00</translation>
    </message>
    <message>
      <source>UTC-09:00</source>
      <translation>UTC-09:00</translation>
    </message>
    <message>
      <source>UTC-08:00</source>
      <translation>UTC-08:00</translation>
    </message>
    <message>
      <source>UTC-07:00</source>
      <translation>UTC-07:00</translation>
    </message>
    <message>
      <source>UTC-06:00</source>
      <translation>UTC-06:00</translation>
    </message>
    <message>
      <source>UTC-05:00</source>
      <translation>UTC-05:00</translation>
    </message>
    <message>
      <source>UTC-04:00</source>
      <translation>UTC-04:00</translation>
    </message>
    <message>
      <source>UTC-03:00</source>
      <translation>UTC-03:00</translation>
    </message>
    <message>
      <source>UTC-02:00</source>
      <translation>UTC-02:00</translation>
    </message>
    <message>
      <source>UTC-01:00</source>
      <translation>UTC-01:00</translation>
    </message>
    <message>
      <source>UTC+00:00</source>
      <translation>UTC+00:00</translation>
    </message>
    <message>
      <source>UTC+01:00</source>
      <translation>UTC+01:00</translation>
    </message>
    <message>
      <source>UTC+02:00</source>
      <translation>UTC+02:00</translation>
    </message>
    <message>
      <source>UTC+03:00</source>
      <translation>UTC+03:00</translation>
    </message>
    <message>
      <source>UTC+04:00</source>
      <translation>UTC+04:00</translation>
    </message>
    <message>
      <source>UTC+05:00</source>
      <translation>UTC+05:00</translation>
    </message>
    <message>
      <source>UTC+05:30</source>
      <translation>UTC+05:30</translation>
    </message>
    <message>
      <source>UTC+05:45</source>
      <translation>UTC+05:45</translation>
    </message>
    <message>
      <source>UTC+06:00</source>
      <translation>UTC+06:00</translation>
    </message>
    <message>
      <source>UTC+07:00</source>
      <translation>UTC+07:00</translation>
    </message>
    <message>
      <source>UTC+08:00</source>
      <translation>UTC+08:00</translation>
    </message>
    <message>
      <source>UTC+09:00</source>
      <translation>UTC+09:00</translation>
    </message>
    <message>
      <source>UTC+09:30</source>
      <translation>UTC+09:30</translation>
    </message>
    <message>
      <source>UTC+10:00</source>
      <translation>UTC+10:00</translation>
    </message>
    <message>
      <source>UTC+11:00</source>
      <translation>UTC+11:00</translation>
    </message>
    <message>
      <source>UTC+12:00</source>
      <translation>UTC+12:00</translation>
    </message>
    <message>
      <source>UTC+13:00</source>
      <translation>UTC+13:00</translation>
    </message>
    <message>
      <source>UTC+14:00</source>
      <translation>UTC+14:00</translation>
    </message>
    <message>
      <source>Daylight Saving Time</source>
      <translation>שעון קיץ</translation>
    </message>
    <message>
      <source>km/h</source>
      <translation>קמ"ש</translation>
    </message>
    <message>
      <source>mph</source>
      <translation>מיל לשעה</translation>
    </message>
    <message>
      <source>Volume</source>
      <translation>עוצמת שמע</translation>
    </message>
    <message>
      <source>Mute</source>
      <translation>השתקה</translation>
    </message>
    <message>
      <source>Voice Guidance</source>
      <translation>הנחיה קולית</translation>
    </message>
    <message>
      <source>Model Name</source>
      <translation>שם הדגם</translation>
    </message>
    <message>
      <source>Firmware Version</source>
      <translation>גרסת קושחה</translation>
    </message>
    <message>
      <source>Interior Camera</source>
      <translation>מצלמה פנימית</translation>
    </message>
    <message>
      <source>Wi-Fi</source>
      <translation>Wi-Fi</translation>
    </message>
    <message>
      <source>Wifi Password</source>
      <translation>סיסמת Wi-Fi</translation>
    </message>
    <message>
      <source>The last four characters of the camera's serial number.</source>
      <translation>ארבעת התווים האחרונים של המספר הסידורי של המצלמה.</translation>
    </message>
    <message>
      <source>2160p UHD</source>
      <translation>2160p UHD</translation>
    </message>
    <message>
      <source>Night Vision</source>
      <translation>ראיית לילה</translation>
    </message>
    <message>
      <source>LCD Auto Off</source>
      <translation>כיבוי מסך אוטומטי</translation>
    </message>
  </context>
  <context>
    <name>SettingOptCrashReport</name>
    <message>
      <source>The transfer is complete.</source>
      <translation>ההעברה הושלמה.</translation>
    </message>
  </context>
  <context>
    <name>SettingOptProgram</name>
    <message>
      <source>Choose a folder</source>
      <translation>בחירת תיקייה</translation>
    </message>
  </context>
  <context>
    <name>SettingView</name>
    <message>
      <source>There are unsaved settings.</source>
      <translation>יש הגדרות שלא נשמרו.</translation>
    </message>
    <message>
      <source>SD is not exist!</source>
      <translation>כרטיס SD אינו קיים!</translation>
    </message>
    <message>
      <source>File Format</source>
      <translation>אתחול קבצים</translation>
    </message>
    <message>
      <source>Do you Really want to file format?</source>
      <translation>האם אתה בטוח שברצונך לאתחל?</translation>
    </message>
    <message>
      <source>It can't go back if you clicked yes.</source>
      <translation>לאחר לחיצה על 'כן' לא ניתן לחזור.</translation>
    </message>
    <message>
      <source>Error Occured!</source>
      <translation>אירעה שגיאה!</translation>
    </message>
    <message>
      <source>Complete!</source>
      <translation>הושלם!</translation>
    </message>
    <message>
      <source>Device Reset</source>
      <translation>איפוס המכשיר</translation>
    </message>
    <message>
      <source>The memory will be formatted to return some settings to defaults.</source>
      <translation>הזיכרון יאותחל כדי להחזיר חלק מההגדרות לברירת המחדל.</translation>
    </message>
    <message>
      <source>Would you like to return your device to factory settings?</source>
      <translation>האם להחזיר את המכשיר להגדרות היצרן?</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>איפוס התוכנה</translation>
    </message>
    <message>
      <source>Program will be quit.</source>
      <translation>התוכנה תיסגר.</translation>
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
    <message>
      <source>This recording cannot be played.</source>
      <translation>לא ניתן להפעיל הקלטה זו.</translation>
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
    <name>UpdateView</name>
    <message>
      <source>unknown</source>
      <translation>לא ידוע</translation>
    </message>
    <message>
      <source>Downloading the new version...</source>
      <translation>מוריד את הגרסה החדשה...</translation>
    </message>
    <message>
      <source>The service is still downloading. Please wait...</source>
      <translation>השירות עדיין מוריד. נא להמתין...</translation>
    </message>
    <message>
      <source>The download is complete.</source>
      <translation>ההורדה הושלמה.</translation>
    </message>
  </context>
  <context>
    <name>VersionText</name>
    <message>
      <source>Version %1 is out.</source>
      <translation>גרסה %1 יצאה.</translation>
    </message>
    <message>
      <source>This is the latest version.</source>
      <translation>זו הגרסה העדכנית ביותר.</translation>
    </message>
    <message>
      <source>The service gave an answer this program does not understand.</source>
      <translation>השירות נתן תשובה שהתוכנה אינה מבינה.</translation>
    </message>
  </context>
  <context>
    <name>ui_aboutView</name>
    <message>
      <source>About</source>
      <translation>אודות</translation>
    </message>
    <message>
      <source>Version %1</source>
      <translation>גרסה %1</translation>
    </message>
    <message>
      <source>Ask the service whether a newer version is out.</source>
      <translation>אפשר לשאול את השירות אם יצאה גרסה חדשה יותר.</translation>
    </message>
    <message>
      <source>Check for Updates</source>
      <translation>בדיקת עדכונים</translation>
    </message>
    <message>
      <source>Update</source>
      <translation>עדכון</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>סגירה</translation>
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
      <source>Drives</source>
      <translation>נסיעות</translation>
    </message>
    <message>
      <source>Map</source>
      <translation>מפה</translation>
    </message>
    <message>
      <source>All</source>
      <translation>הכל</translation>
    </message>
    <message>
      <source>Infinity</source>
      <translation>רציף</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>חניה</translation>
    </message>
    <message>
      <source>Event</source>
      <translation>אירוע</translation>
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
    <name>ui_sDCardView</name>
    <message>
      <source>Memory Card</source>
      <translation>כרטיס זיכרון</translation>
    </message>
    <message>
      <source>Choose the memory card of your dash camera.</source>
      <translation>בחר את כרטיס הזיכרון של מצלמת הרכב.</translation>
    </message>
    <message>
      <source>Refresh</source>
      <translation>רענון</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>פתיחה</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>ביטול</translation>
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
    <name>ui_settingView</name>
    <message>
      <source>Settings</source>
      <translation>הגדרות</translation>
    </message>
    <message>
      <source>Device</source>
      <translation>מכשיר</translation>
    </message>
    <message>
      <source>Camera</source>
      <translation>מצלמה</translation>
    </message>
    <message>
      <source>Battery Protection</source>
      <translation>הגנת מצבר</translation>
    </message>
    <message>
      <source>Memory</source>
      <translation>זיכרון</translation>
    </message>
    <message>
      <source>Sensitive</source>
      <translation>רגישות</translation>
    </message>
    <message>
      <source>System</source>
      <translation>מערכת</translation>
    </message>
    <message>
      <source>PCViewer</source>
      <translation>מציג PC</translation>
    </message>
    <message>
      <source>Program Setting</source>
      <translation>הגדרות התוכנה</translation>
    </message>
    <message>
      <source>Update</source>
      <translation>עדכון</translation>
    </message>
    <message>
      <source>Crash Report</source>
      <translation>דוח קריסה</translation>
    </message>
    <message>
      <source>Open a memory card to see the settings of its camera.</source>
      <translation>פתח כרטיס זיכרון כדי לראות את הגדרות המצלמה שלו.</translation>
    </message>
    <message>
      <source>A program reset returns the window, language, sound and folders to their first start and starts the program again.</source>
      <translation>איפוס התוכנה מחזיר את החלון, השפה, הצליל והתיקיות למצב ההפעלה הראשונה ומפעיל את התוכנה מחדש.</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>איפוס התוכנה</translation>
    </message>
    <message>
      <source>File Format</source>
      <translation>אתחול קבצים</translation>
    </message>
    <message>
      <source>Device Reset</source>
      <translation>איפוס המכשיר</translation>
    </message>
    <message>
      <source>Apply</source>
      <translation>החל</translation>
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
    <name>ui_updateView</name>
    <message>
      <source>Update</source>
      <translation>עדכון</translation>
    </message>
    <message>
      <source>A newer version of the program can be downloaded. When the download is complete, the program closes so that the new version can be installed.</source>
      <translation>אפשר להוריד גרסה חדשה יותר של התוכנה. כשההורדה תושלם, התוכנה תיסגר כדי שאפשר יהיה להתקין את הגרסה החדשה.</translation>
    </message>
    <message>
      <source>Installed: %1    Available: %2</source>
      <translation>מותקנת: %1    זמינה: %2</translation>
    </message>
    <message>
      <source>Check for updates when the program starts</source>
      <translation>בדיקת עדכונים בהפעלת התוכנה</translation>
    </message>
    <message>
      <source>Download</source>
      <translation>הורדה</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>סגירה</translation>
    </message>
  </context>
  <context>
    <name>ui_waitAlertView</name>
    <message>
      <source>Please wait...</source>
      <translation>נא להמתין...</translation>
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
