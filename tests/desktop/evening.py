"""An evening with the player for somebody who hears it: everything by the accessibility bus alone.

evening.py FOLDER: three films lie in the folder; snapshots go to FOLDER/shots.
"""
import os
import re
import sys
import time

import pyatspi

FOLDER = sys.argv[1]
FILMS = sorted(name for name in os.listdir(FOLDER) if name.endswith(".mkv"))


def wait_for(what, find):
    for _ in range(600):
        try:
            found = find()
            if found:
                return found
        except Exception:  # what is asked may be gone
            pass
        time.sleep(0.1)
    sys.exit("There is no " + what)


def everything(top, depth=0):
    if top is None or depth > 14:
        return
    yield top
    for child in top:
        yield from everything(child, depth + 1)


def player():
    return next(app for app in pyatspi.Registry.getDesktop(0) if "Zentaro" in app.name)


def named(role, name, top=None):
    def find():
        for each in everything(top or player()):
            if each.getRoleName() == role and re.match(name, each.name):
                return each
    return wait_for(role + " " + name, find)


def act(thing, action):
    actions = thing.queryAction()
    names = [actions.getName(i).lower() for i in range(actions.nActions)]
    actions.doAction(names.index(action))


def press(role, name):
    act(named(role, name), "press")


def choose_files():
    press("push button", "Open Media File")
    edit = named("text", "File name")
    edit.queryEditableText().setTextContents(" ".join('"' + os.path.join(FOLDER, f) + '"' for f in FILMS))
    press("push button", "Open$")


def spoken():
    return named("slider", "Position").description


choose_files()
# What the first film is was read while it began to play.
wait_for("facts of the first film", lambda: named("list item", FILMS[0]).description.startswith("0:20"))
rows = wait_for("third row", lambda: [r for r in named("list", "Playlist") if r.getRoleName() == "list item"][2:3])
act(rows[0], "press")
wait_for("third film", lambda: named("list item", FILMS[2] + ", playing"))
wait_for("length", lambda: spoken().endswith("of 0:20"))
wait_for("pause", lambda: named("push button", "Pause").getState().contains(pyatspi.STATE_ENABLED))
press("push button", "Pause")
place = named("slider", "Position").queryValue()
assert place.maximumValue == 20, place.maximumValue
place.currentValue = 10
wait_for("jump", lambda: spoken() in ("0:09 of 0:20", "0:10 of 0:20"))
press("push button", "Fast forward")
wait_for("step by the button", lambda: spoken() == "0:18 of 0:20" or spoken() == "0:19 of 0:20")
act(named("menu item", "Video$"), "showmenu")
act(named("menu item", "Track 1", named("menu item", "Subtitles")), "press")
press("push button", "Snapshot")
wait_for("snapshot", lambda: any(name.endswith(".png") for _, _, names in os.walk(FOLDER + "/shots") for name in names))
press("push button", "Close")
