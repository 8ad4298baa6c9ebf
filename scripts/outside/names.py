"""The names under which Tarvelo's controls stand on the accessibility bus: the one place to change them."""

APPLICATION = "Tarvelo"
MAIN_WINDOW = "Tarvelo"
NEW_LECTURE_WINDOW = "New Lecture"
EDIT_WINDOW = "Edit Lecture"
CONFIRM_DELETE = "Delete this lecture and its recording?"

LECTURES = "Lectures"
NEW_LECTURE = "New Lecture"
SUBJECT = "Subject"
NOTES = "Notes"
START_RECORDING = "Start recording"
PAUSE = "Pause"
RESUME = "Resume"
STOP = "Stop"
PLAY = "Play"
RECORDING_ON_PROCESS = "Recording is on process!"
DONE = "Done"
EDIT = "Edit"
DELETE = "Delete"
YES = "Yes"
HALF_SPEED = "Half the speed"
HAS_LECTURES = "Has lectures"
NO_LECTURES = "No lectures on this day"

# In the menu of a row, from its upper end round to its lower one.
SHOW_FILE_KEYS = ("Up", "Up", "Return")
SHARE_KEYS = ("Up", "Return")
GUIDE_KEYS = "F1"
QUIT_KEYS = "ctrl+q"
