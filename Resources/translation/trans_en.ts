<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
  <context>
    <name>CardSession</name>
    <message>
      <source>The memory card was removed.</source>
      <translation>The memory card was removed.</translation>
    </message>
  </context>
  <context>
    <name>ChannelChoices</name>
    <message>
      <source>No picture</source>
      <translation>No picture</translation>
    </message>
  </context>
  <context>
    <name>ConfigAccess</name>
    <message>
      <source>Error is occured!</source>
      <translation>Error is occured!</translation>
    </message>
    <message>
      <source>This model is not supported!</source>
      <translation>This model is not supported!</translation>
    </message>
    <message>
      <source>checksum is different!</source>
      <translation>checksum is different!</translation>
    </message>
    <message>
      <source>Setting file is not exist!</source>
      <translation>Setting file is not exist!</translation>
    </message>
    <message>
      <source>This model is not support!</source>
      <translation>This model is not support!</translation>
    </message>
    <message>
      <source>The settings were not written: the SD card is not the one that was opened.</source>
      <translation>The settings were not written: the SD card is not the one that was opened.</translation>
    </message>
    <message>
      <source>The settings could not be written to the SD card, and its previous settings could not be put back.</source>
      <translation>The settings could not be written to the SD card, and its previous settings could not be put back.</translation>
    </message>
    <message>
      <source>The settings could not be written to the SD card. Its previous settings are kept.</source>
      <translation>The settings could not be written to the SD card. Its previous settings are kept.</translation>
    </message>
    <message>
      <source>Fail to format SDCard!</source>
      <translation>Fail to format SDCard!</translation>
    </message>
  </context>
  <context>
    <name>DriveListView</name>
    <message>
      <source>Recordings: %1</source>
      <translation>Recordings: %1</translation>
    </message>
    <message>
      <source>Incidents: %1</source>
      <translation>Incidents: %1</translation>
    </message>
    <message>
      <source>Incidents: reading</source>
      <translation>Incidents: reading</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>Parking</translation>
    </message>
    <message>
      <source>Drive</source>
      <translation>Drive</translation>
    </message>
  </context>
  <context>
    <name>ExportSession</name>
    <message>
      <source>Play a recording to print its report.</source>
      <translation>Play a recording to print its report.</translation>
    </message>
  </context>
  <context>
    <name>FfmpegRunner</name>
    <message>
      <source>the file there cannot be moved aside.</source>
      <translation>the file there cannot be moved aside.</translation>
    </message>
    <message>
      <source>ffmpeg stopped unexpectedly.</source>
      <translation>ffmpeg stopped unexpectedly.</translation>
    </message>
    <message>
      <source>ffmpeg ended with code %1.</source>
      <translation>ffmpeg ended with code %1.</translation>
    </message>
    <message>
      <source>ffmpeg cannot be started: %1</source>
      <translation>ffmpeg cannot be started: %1</translation>
    </message>
  </context>
  <context>
    <name>FileFormatThread</name>
    <message>
      <source>The SD card was not formatted: its configuration could not be saved.</source>
      <translation>The SD card was not formatted: its configuration could not be saved.</translation>
    </message>
    <message>
      <source>The configuration could not be put back on the SD card.</source>
      <translation>The configuration could not be put back on the SD card.</translation>
    </message>
    <message>
      <source>The configuration could not be put back on the SD card. It is kept in %1.</source>
      <translation>The configuration could not be put back on the SD card. It is kept in %1.</translation>
    </message>
    <message>
      <source>The SD card is not the one that was opened, or it is no longer mounted. Nothing on it was changed.</source>
      <translation>The SD card is not the one that was opened, or it is no longer mounted. Nothing on it was changed.</translation>
    </message>
    <message>
      <source>The SD card is no longer mounted. Nothing on it was changed.</source>
      <translation>The SD card is no longer mounted. Nothing on it was changed.</translation>
    </message>
    <message>
      <source>You have no permission to format %1. Nothing on the SD card was changed.</source>
      <translation>You have no permission to format %1. Nothing on the SD card was changed.</translation>
    </message>
    <message>
      <source>The SD card could not be unmounted (%1). Nothing on it was changed.</source>
      <translation>The SD card could not be unmounted (%1). Nothing on it was changed.</translation>
    </message>
    <message>
      <source>The formatter %1 could not be started. Nothing on the SD card was changed.</source>
      <translation>The formatter %1 could not be started. Nothing on the SD card was changed.</translation>
    </message>
    <message>
      <source>The formatter failed with exit code %1.</source>
      <translation>The formatter failed with exit code %1.</translation>
    </message>
  </context>
  <context>
    <name>Incident</name>
    <message>
      <source>Harsh braking</source>
      <translation>Harsh braking</translation>
    </message>
    <message>
      <source>Harsh acceleration</source>
      <translation>Harsh acceleration</translation>
    </message>
    <message>
      <source>Sharp turn</source>
      <translation>Sharp turn</translation>
    </message>
    <message>
      <source>Impact</source>
      <translation>Impact</translation>
    </message>
    <message>
      <source>Camera event</source>
      <translation>Camera event</translation>
    </message>
  </context>
  <context>
    <name>IncidentListView</name>
    <message>
      <source>The camera recorded this moment as an event.</source>
      <translation>The camera recorded this moment as an event.</translation>
    </message>
  </context>
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
    <name>PrintChannelSelectView</name>
    <message>
      <source>There is not selected channel!</source>
      <translation>There is not selected channel!</translation>
    </message>
  </context>
  <context>
    <name>PrintView</name>
    <message>
      <source>The file cannot be written there.</source>
      <translation>The file cannot be written there.</translation>
    </message>
    <message>
      <source>The file there cannot be replaced.</source>
      <translation>The file there cannot be replaced.</translation>
    </message>
    <message>
      <source>Save as PDF</source>
      <translation>Save as PDF</translation>
    </message>
    <message>
      <source>PDF (*.pdf)</source>
      <translation>PDF (*.pdf)</translation>
    </message>
    <message>
      <source>The report was not saved:</source>
      <translation>The report was not saved:</translation>
    </message>
    <message>
      <source>The report is saved:</source>
      <translation>The report is saved:</translation>
    </message>
  </context>
  <context>
    <name>RecordingName</name>
    <message>
      <source>The file is empty.</source>
      <translation>The file is empty.</translation>
    </message>
    <message>
      <source>The file is not a video recording.</source>
      <translation>The file is not a video recording.</translation>
    </message>
    <message>
      <source>The recording is damaged or was cut off (for example by a power loss) and cannot be opened.</source>
      <translation>The recording is damaged or was cut off (for example by a power loss) and cannot be opened.</translation>
    </message>
    <message>
      <source>The file holds no picture.</source>
      <translation>The file holds no picture.</translation>
    </message>
  </context>
  <context>
    <name>ReportPage</name>
    <message>
      <source>FileName: </source>
      <translation>FileName: </translation>
    </message>
    <message>
      <source>Date: </source>
      <translation>Date: </translation>
    </message>
    <message>
      <source>Model Name: </source>
      <translation>Model Name: </translation>
    </message>
    <message>
      <source>GPS:</source>
      <translation>GPS:</translation>
    </message>
    <message>
      <source>Speed: </source>
      <translation>Speed: </translation>
    </message>
    <message>
      <source>G-Senor: X:</source>
      <translation>G-Senor: X:</translation>
    </message>
    <message>
      <source>Memo: </source>
      <translation>Memo: </translation>
    </message>
    <message>
      <source>Report</source>
      <translation>Report</translation>
    </message>
  </context>
  <context>
    <name>SDCardView</name>
    <message>
      <source>Drive</source>
      <translation>Drive</translation>
    </message>
    <message>
      <source>Name</source>
      <translation>Name</translation>
    </message>
    <message>
      <source>Total</source>
      <translation>Total</translation>
    </message>
    <message>
      <source>Used</source>
      <translation>Used</translation>
    </message>
    <message>
      <source>Free</source>
      <translation>Free</translation>
    </message>
    <message>
      <source>SD Card is not selected!</source>
      <translation>SD Card is not selected!</translation>
    </message>
    <message>
      <source>SD Card is not connected!</source>
      <translation>SD Card is not connected!</translation>
    </message>
    <message>
      <source>SD Card is Empty!</source>
      <translation>SD Card is Empty!</translation>
    </message>
  </context>
  <context>
    <name>SaveAsView</name>
    <message>
      <source>There is no select channel</source>
      <translation>There is no select channel</translation>
    </message>
    <message>
      <source>Search Folder</source>
      <translation>Search Folder</translation>
    </message>
    <message>
      <source>File Setting</source>
      <translation>File Setting</translation>
    </message>
    <message>
      <source>Choose Save Scene</source>
      <translation>Choose Save Scene</translation>
    </message>
    <message>
      <source>Choose the folder to save to.</source>
      <translation>Choose the folder to save to.</translation>
    </message>
    <message>
      <source>The folder %1 cannot be made.</source>
      <translation>The folder %1 cannot be made.</translation>
    </message>
    <message>
      <source>Complete to Save Snapshot!</source>
      <translation>Complete to Save Snapshot!</translation>
    </message>
    <message>
      <source>Snapshot not saved:</source>
      <translation>Snapshot not saved:</translation>
    </message>
    <message>
      <source>Saved:</source>
      <translation>Saved:</translation>
    </message>
    <message>
      <source>The video cannot be saved: the ffmpeg program is missing. It belongs in %1 or on the PATH.</source>
      <translation>The video cannot be saved: the ffmpeg program is missing. It belongs in %1 or on the PATH.</translation>
    </message>
    <message>
      <source>%1 is the recording itself. Choose another folder to save the video to.</source>
      <translation>%1 is the recording itself. Choose another folder to save the video to.</translation>
    </message>
    <message>
      <source>The files of the chosen cameras are not there any more.</source>
      <translation>The files of the chosen cameras are not there any more.</translation>
    </message>
    <message>
      <source>These files exist already:</source>
      <translation>These files exist already:</translation>
    </message>
    <message>
      <source>Replace them?</source>
      <translation>Replace them?</translation>
    </message>
    <message>
      <source>Saving channel %1 of %2...</source>
      <translation>Saving channel %1 of %2...</translation>
    </message>
    <message>
      <source>Channel %1 has no file to save.</source>
      <translation>Channel %1 has no file to save.</translation>
    </message>
    <message>
      <source>Complete File Download!</source>
      <translation>Complete File Download!</translation>
    </message>
    <message>
      <source>The video was not saved.</source>
      <translation>The video was not saved.</translation>
    </message>
    <message>
      <source>Saved before that:</source>
      <translation>Saved before that:</translation>
    </message>
    <message>
      <source>Cancelled. The unfinished file was removed.</source>
      <translation>Cancelled. The unfinished file was removed.</translation>
    </message>
    <message>
      <source>The video is still being saved. Stop saving it?</source>
      <translation>The video is still being saved. Stop saving it?</translation>
    </message>
  </context>
  <context>
    <name>ServiceRequest</name>
    <message>
      <source>Asking the service...</source>
      <translation>Asking the service...</translation>
    </message>
    <message>
      <source>The service for updates and reports is not working.</source>
      <translation>The service for updates and reports is not working.</translation>
    </message>
    <message>
      <source>The service for updates and reports does not use the network now.</source>
      <translation>The service for updates and reports does not use the network now.</translation>
    </message>
    <message>
      <source>The service for updates and reports did not answer.</source>
      <translation>The service for updates and reports did not answer.</translation>
    </message>
    <message>
      <source>The connection to the service for updates and reports was lost.</source>
      <translation>The connection to the service for updates and reports was lost.</translation>
    </message>
    <message>
      <source>Check your Network state</source>
      <translation>Check your Network state</translation>
    </message>
    <message>
      <source>DownLoad Fail</source>
      <translation>DownLoad Fail</translation>
    </message>
  </context>
  <context>
    <name>ServiceSession</name>
    <message>
      <source>Update Message</source>
      <translation>Update Message</translation>
    </message>
    <message>
      <source>find Update Version</source>
      <translation>find Update Version</translation>
    </message>
    <message>
      <source>Would you like to download now?</source>
      <translation>Would you like to download now?</translation>
    </message>
    <message>
      <source>The new version has been downloaded. The program closes now so that it can be installed.</source>
      <translation>The new version has been downloaded. The program closes now so that it can be installed.</translation>
    </message>
  </context>
  <context>
    <name>SettingOpt</name>
    <message>
      <source>Automatic Crash Reports</source>
      <translation>Automatic Crash Reports</translation>
    </message>
    <message>
      <source>After the program ended unexpectedly, the service sends its status log without asking.</source>
      <translation>After the program ended unexpectedly, the service sends its status log without asking.</translation>
    </message>
    <message>
      <source>Send a Crash Report</source>
      <translation>Send a Crash Report</translation>
    </message>
    <message>
      <source>Send Now</source>
      <translation>Send Now</translation>
    </message>
    <message>
      <source>Language</source>
      <translation>Language</translation>
    </message>
    <message>
      <source>Speed Unit</source>
      <translation>Speed Unit</translation>
    </message>
    <message>
      <source>Keep Settings</source>
      <translation>Keep Settings</translation>
    </message>
    <message>
      <source>Drive Gap</source>
      <translation>Drive Gap</translation>
    </message>
    <message>
      <source>Incident Thresholds</source>
      <translation>Incident Thresholds</translation>
    </message>
    <message>
      <source>Save the window, language, sound and folders when the program closes.</source>
      <translation>Save the window, language, sound and folders when the program closes.</translation>
    </message>
    <message>
      <source>Recordings closer than this make one drive.</source>
      <translation>Recordings closer than this make one drive.</translation>
    </message>
    <message>
      <source>Of the published thresholds: lower finds more incidents, higher fewer.</source>
      <translation>Of the published thresholds: lower finds more incidents, higher fewer.</translation>
    </message>
    <message>
      <source>Snapshot Folder</source>
      <translation>Snapshot Folder</translation>
    </message>
    <message>
      <source>Change</source>
      <translation>Change</translation>
    </message>
    <message>
      <source>Video Folder</source>
      <translation>Video Folder</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>Program Reset</translation>
    </message>
    <message>
      <source>Program Version</source>
      <translation>Program Version</translation>
    </message>
    <message>
      <source>Check for Updates at Start</source>
      <translation>Check for Updates at Start</translation>
    </message>
    <message>
      <source>Each start asks the service whether a newer version is out.</source>
      <translation>Each start asks the service whether a newer version is out.</translation>
    </message>
    <message>
      <source>Newer Version</source>
      <translation>Newer Version</translation>
    </message>
    <message>
      <source>Update Now</source>
      <translation>Update Now</translation>
    </message>
    <message>
      <source>Camera</source>
      <translation>Camera</translation>
    </message>
    <message>
      <source>Front Resolution</source>
      <translation>Front Resolution</translation>
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
      <translation>Rear Resolution</translation>
    </message>
    <message>
      <source>720p HD</source>
      <translation>720p HD</translation>
    </message>
    <message>
      <source>Frame Rate</source>
      <translation>Frame Rate</translation>
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
      <translation>Exposure</translation>
    </message>
    <message>
      <source>Video Bitrate</source>
      <translation>Video Bitrate</translation>
    </message>
    <message>
      <source>A higher bitrate keeps more detail and fits less time on the card.</source>
      <translation>A higher bitrate keeps more detail and fits less time on the card.</translation>
    </message>
    <message>
      <source>Low</source>
      <translation>Low</translation>
    </message>
    <message>
      <source>Normal</source>
      <translation>Normal</translation>
    </message>
    <message>
      <source>High</source>
      <translation>High</translation>
    </message>
    <message>
      <source>Record Audio</source>
      <translation>Record Audio</translation>
    </message>
    <message>
      <source>Off</source>
      <translation>Off</translation>
    </message>
    <message>
      <source>On</source>
      <translation>On</translation>
    </message>
    <message>
      <source>Date Stamp</source>
      <translation>Date Stamp</translation>
    </message>
    <message>
      <source>Speed Stamp</source>
      <translation>Speed Stamp</translation>
    </message>
    <message>
      <source>Rear Camera Mirror</source>
      <translation>Rear Camera Mirror</translation>
    </message>
    <message>
      <source>Battery Protection</source>
      <translation>Battery Protection</translation>
    </message>
    <message>
      <source>Parking Mode</source>
      <translation>Parking Mode</translation>
    </message>
    <message>
      <source>Impact only</source>
      <translation>Impact only</translation>
    </message>
    <message>
      <source>Motion and impact</source>
      <translation>Motion and impact</translation>
    </message>
    <message>
      <source>Time lapse</source>
      <translation>Time lapse</translation>
    </message>
    <message>
      <source>Low Voltage Cut-off</source>
      <translation>Low Voltage Cut-off</translation>
    </message>
    <message>
      <source>Stops recording before the car battery runs too low to start the engine.</source>
      <translation>Stops recording before the car battery runs too low to start the engine.</translation>
    </message>
    <message>
      <source>Cut-off Voltage</source>
      <translation>Cut-off Voltage</translation>
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
      <translation>Parking Timer</translation>
    </message>
    <message>
      <source>6 h</source>
      <translation>6 h</translation>
    </message>
    <message>
      <source>12 h</source>
      <translation>12 h</translation>
    </message>
    <message>
      <source>24 h</source>
      <translation>24 h</translation>
    </message>
    <message>
      <source>48 h</source>
      <translation>48 h</translation>
    </message>
    <message>
      <source>Memory</source>
      <translation>Memory</translation>
    </message>
    <message>
      <source>Memory Allocation</source>
      <translation>Memory Allocation</translation>
    </message>
    <message>
      <source>Changing it formats the memory card.</source>
      <translation>Changing it formats the memory card.</translation>
    </message>
    <message>
      <source>Driving priority</source>
      <translation>Driving priority</translation>
    </message>
    <message>
      <source>Event priority</source>
      <translation>Event priority</translation>
    </message>
    <message>
      <source>Parking priority</source>
      <translation>Parking priority</translation>
    </message>
    <message>
      <source>Driving only</source>
      <translation>Driving only</translation>
    </message>
    <message>
      <source>Overwrite Events</source>
      <translation>Overwrite Events</translation>
    </message>
    <message>
      <source>Recording Length</source>
      <translation>Recording Length</translation>
    </message>
    <message>
      <source>1 min</source>
      <translation>1 min</translation>
    </message>
    <message>
      <source>2 min</source>
      <translation>2 min</translation>
    </message>
    <message>
      <source>3 min</source>
      <translation>3 min</translation>
    </message>
    <message>
      <source>Sensitive</source>
      <translation>Sensitive</translation>
    </message>
    <message>
      <source>Driving Impact Sensitivity</source>
      <translation>Driving Impact Sensitivity</translation>
    </message>
    <message>
      <source>Lowest</source>
      <translation>Lowest</translation>
    </message>
    <message>
      <source>Middle</source>
      <translation>Middle</translation>
    </message>
    <message>
      <source>Highest</source>
      <translation>Highest</translation>
    </message>
    <message>
      <source>Parking Impact Sensitivity</source>
      <translation>Parking Impact Sensitivity</translation>
    </message>
    <message>
      <source>Motion Detection Sensitivity</source>
      <translation>Motion Detection Sensitivity</translation>
    </message>
    <message>
      <source>System</source>
      <translation>System</translation>
    </message>
    <message>
      <source>Time Zone</source>
      <translation>Time Zone</translation>
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
      <translation>Daylight Saving Time</translation>
    </message>
    <message>
      <source>km/h</source>
      <translation>km/h</translation>
    </message>
    <message>
      <source>mph</source>
      <translation>mph</translation>
    </message>
    <message>
      <source>Volume</source>
      <translation>Volume</translation>
    </message>
    <message>
      <source>Mute</source>
      <translation>Mute</translation>
    </message>
    <message>
      <source>Voice Guidance</source>
      <translation>Voice Guidance</translation>
    </message>
    <message>
      <source>Model Name</source>
      <translation>Model Name</translation>
    </message>
    <message>
      <source>Firmware Version</source>
      <translation>Firmware Version</translation>
    </message>
    <message>
      <source>Interior Camera</source>
      <translation>Interior Camera</translation>
    </message>
    <message>
      <source>Wi-Fi</source>
      <translation>Wi-Fi</translation>
    </message>
    <message>
      <source>Wifi Password</source>
      <translation>Wifi Password</translation>
    </message>
    <message>
      <source>The last four characters of the camera's serial number.</source>
      <translation>The last four characters of the camera's serial number.</translation>
    </message>
    <message>
      <source>2160p UHD</source>
      <translation>2160p UHD</translation>
    </message>
    <message>
      <source>Night Vision</source>
      <translation>Night Vision</translation>
    </message>
    <message>
      <source>LCD Auto Off</source>
      <translation>LCD Auto Off</translation>
    </message>
  </context>
  <context>
    <name>SettingOptCrashReport</name>
    <message>
      <source>The transfer is complete.</source>
      <translation>The transfer is complete.</translation>
    </message>
  </context>
  <context>
    <name>SettingOptProgram</name>
    <message>
      <source>Choose a folder</source>
      <translation>Choose a folder</translation>
    </message>
  </context>
  <context>
    <name>SettingView</name>
    <message>
      <source>There are unsaved settings.</source>
      <translation>There are unsaved settings.</translation>
    </message>
    <message>
      <source>SD is not exist!</source>
      <translation>SD is not exist!</translation>
    </message>
    <message>
      <source>File Format</source>
      <translation>File Format</translation>
    </message>
    <message>
      <source>Do you Really want to file format?</source>
      <translation>Do you Really want to file format?</translation>
    </message>
    <message>
      <source>It can't go back if you clicked yes.</source>
      <translation>It can't go back if you clicked yes.</translation>
    </message>
    <message>
      <source>Error Occured!</source>
      <translation>Error Occured!</translation>
    </message>
    <message>
      <source>Complete!</source>
      <translation>Complete!</translation>
    </message>
    <message>
      <source>Device Reset</source>
      <translation>Device Reset</translation>
    </message>
    <message>
      <source>The memory will be formatted to return some settings to defaults.</source>
      <translation>The memory will be formatted to return some settings to defaults.</translation>
    </message>
    <message>
      <source>Would you like to return your device to factory settings?</source>
      <translation>Would you like to return your device to factory settings?</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>Program Reset</translation>
    </message>
    <message>
      <source>Program will be quit.</source>
      <translation>Program will be quit.</translation>
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
    <message>
      <source>This recording cannot be played.</source>
      <translation>This recording cannot be played.</translation>
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
    <name>UpdateView</name>
    <message>
      <source>unknown</source>
      <translation>unknown</translation>
    </message>
    <message>
      <source>Downloading the new version...</source>
      <translation>Downloading the new version...</translation>
    </message>
    <message>
      <source>The service is still downloading. Please wait...</source>
      <translation>The service is still downloading. Please wait...</translation>
    </message>
    <message>
      <source>The download is complete.</source>
      <translation>The download is complete.</translation>
    </message>
  </context>
  <context>
    <name>VersionText</name>
    <message>
      <source>Version %1 is out.</source>
      <translation>Version %1 is out.</translation>
    </message>
    <message>
      <source>This is the latest version.</source>
      <translation>This is the latest version.</translation>
    </message>
    <message>
      <source>The service gave an answer this program does not understand.</source>
      <translation>The service gave an answer this program does not understand.</translation>
    </message>
  </context>
  <context>
    <name>ui_aboutView</name>
    <message>
      <source>About</source>
      <translation>About</translation>
    </message>
    <message>
      <source>Version %1</source>
      <translation>Version %1</translation>
    </message>
    <message>
      <source>Ask the service whether a newer version is out.</source>
      <translation>Ask the service whether a newer version is out.</translation>
    </message>
    <message>
      <source>Check for Updates</source>
      <translation>Check for Updates</translation>
    </message>
    <message>
      <source>Update</source>
      <translation>Update</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Close</translation>
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
      <source>Drives</source>
      <translation>Drives</translation>
    </message>
    <message>
      <source>Map</source>
      <translation>Map</translation>
    </message>
    <message>
      <source>All</source>
      <translation>All</translation>
    </message>
    <message>
      <source>Infinity</source>
      <translation>Infinity</translation>
    </message>
    <message>
      <source>Parking</source>
      <translation>Parking</translation>
    </message>
    <message>
      <source>Event</source>
      <translation>Event</translation>
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
      <translation>Print</translation>
    </message>
    <message>
      <source>Choose the camera whose picture goes into the report</source>
      <translation>Choose the camera whose picture goes into the report</translation>
    </message>
    <message>
      <source>Channel 1</source>
      <translation>Channel 1</translation>
    </message>
    <message>
      <source>Channel 2</source>
      <translation>Channel 2</translation>
    </message>
    <message>
      <source>Channel 3</source>
      <translation>Channel 3</translation>
    </message>
    <message>
      <source>Channel 4</source>
      <translation>Channel 4</translation>
    </message>
    <message>
      <source>Channel 5</source>
      <translation>Channel 5</translation>
    </message>
    <message>
      <source>Next</source>
      <translation>Next</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Cancel</translation>
    </message>
  </context>
  <context>
    <name>ui_printView</name>
    <message>
      <source>Report</source>
      <translation>Report</translation>
    </message>
    <message>
      <source>Memo</source>
      <translation>Memo</translation>
    </message>
    <message>
      <source>The memo is printed on the last line of the report.</source>
      <translation>The memo is printed on the last line of the report.</translation>
    </message>
    <message>
      <source>Print</source>
      <translation>Print</translation>
    </message>
    <message>
      <source>Save as PDF</source>
      <translation>Save as PDF</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Close</translation>
    </message>
  </context>
  <context>
    <name>ui_sDCardView</name>
    <message>
      <source>Memory Card</source>
      <translation>Memory Card</translation>
    </message>
    <message>
      <source>Choose the memory card of your dash camera.</source>
      <translation>Choose the memory card of your dash camera.</translation>
    </message>
    <message>
      <source>Refresh</source>
      <translation>Refresh</translation>
    </message>
    <message>
      <source>Open</source>
      <translation>Open</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Cancel</translation>
    </message>
  </context>
  <context>
    <name>ui_saveAsView</name>
    <message>
      <source>Choose Save Scene</source>
      <translation>Choose Save Scene</translation>
    </message>
    <message>
      <source>Choose the cameras to save</source>
      <translation>Choose the cameras to save</translation>
    </message>
    <message>
      <source>Channel 1</source>
      <translation>Channel 1</translation>
    </message>
    <message>
      <source>Channel 2</source>
      <translation>Channel 2</translation>
    </message>
    <message>
      <source>Channel 3</source>
      <translation>Channel 3</translation>
    </message>
    <message>
      <source>Channel 4</source>
      <translation>Channel 4</translation>
    </message>
    <message>
      <source>Channel 5</source>
      <translation>Channel 5</translation>
    </message>
    <message>
      <source>Save Snapshot</source>
      <translation>Save Snapshot</translation>
    </message>
    <message>
      <source>Save Video</source>
      <translation>Save Video</translation>
    </message>
    <message>
      <source>Save to this folder</source>
      <translation>Save to this folder</translation>
    </message>
    <message>
      <source>File type</source>
      <translation>File type</translation>
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
      <translation>Back</translation>
    </message>
    <message>
      <source>Save</source>
      <translation>Save</translation>
    </message>
    <message>
      <source>Cancel</source>
      <translation>Cancel</translation>
    </message>
  </context>
  <context>
    <name>ui_settingView</name>
    <message>
      <source>Settings</source>
      <translation>Settings</translation>
    </message>
    <message>
      <source>Device</source>
      <translation>Device</translation>
    </message>
    <message>
      <source>Camera</source>
      <translation>Camera</translation>
    </message>
    <message>
      <source>Battery Protection</source>
      <translation>Battery Protection</translation>
    </message>
    <message>
      <source>Memory</source>
      <translation>Memory</translation>
    </message>
    <message>
      <source>Sensitive</source>
      <translation>Sensitive</translation>
    </message>
    <message>
      <source>System</source>
      <translation>System</translation>
    </message>
    <message>
      <source>PCViewer</source>
      <translation>PCViewer</translation>
    </message>
    <message>
      <source>Program Setting</source>
      <translation>Program Setting</translation>
    </message>
    <message>
      <source>Update</source>
      <translation>Update</translation>
    </message>
    <message>
      <source>Crash Report</source>
      <translation>Crash Report</translation>
    </message>
    <message>
      <source>Open a memory card to see the settings of its camera.</source>
      <translation>Open a memory card to see the settings of its camera.</translation>
    </message>
    <message>
      <source>A program reset returns the window, language, sound and folders to their first start and starts the program again.</source>
      <translation>A program reset returns the window, language, sound and folders to their first start and starts the program again.</translation>
    </message>
    <message>
      <source>Program Reset</source>
      <translation>Program Reset</translation>
    </message>
    <message>
      <source>File Format</source>
      <translation>File Format</translation>
    </message>
    <message>
      <source>Device Reset</source>
      <translation>Device Reset</translation>
    </message>
    <message>
      <source>Apply</source>
      <translation>Apply</translation>
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
    <name>ui_updateView</name>
    <message>
      <source>Update</source>
      <translation>Update</translation>
    </message>
    <message>
      <source>A newer version of the program can be downloaded. When the download is complete, the program closes so that the new version can be installed.</source>
      <translation>A newer version of the program can be downloaded. When the download is complete, the program closes so that the new version can be installed.</translation>
    </message>
    <message>
      <source>Installed: %1    Available: %2</source>
      <translation>Installed: %1    Available: %2</translation>
    </message>
    <message>
      <source>Check for updates when the program starts</source>
      <translation>Check for updates when the program starts</translation>
    </message>
    <message>
      <source>Download</source>
      <translation>Download</translation>
    </message>
    <message>
      <source>Close</source>
      <translation>Close</translation>
    </message>
  </context>
  <context>
    <name>ui_waitAlertView</name>
    <message>
      <source>Please wait...</source>
      <translation>Please wait...</translation>
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
