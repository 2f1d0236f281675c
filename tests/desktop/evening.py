"""An evening with the player for somebody who hears it: everything by the accessibility bus alone.

evening.py FOLDER: three films of three minutes lie in the folder; snapshots go to FOLDER/shots.
"""
import os
import re
import sys
import time

import pyatspi

FOLDER = sys.argv[1]
LENGTH = "3:00"
FILMS = sorted(name for name in os.listdir(FOLDER) if name.endswith(".mkv"))


def wait_for(what, find):
    end = time.monotonic() + 90
    trouble = None
    while time.monotonic() < end:
        try:
            found = find()
            if found:
                print("Found:", what, flush=True)
                return found
        except Exception as error:  # what is asked may be gone
            trouble = error
        time.sleep(0.1)
    sys.exit(f"There is no {what} ({trouble!r})")


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
    # One that cannot be pressed yet would take the press and do nothing.
    wait_for(name + " in use", lambda: named(role, name).getState().contains(pyatspi.STATE_ENABLED))
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
wait_for("facts of the first film", lambda: named("list item", FILMS[0]).description.startswith(LENGTH))
rows = wait_for("third row", lambda: [r for r in named("list", "Playlist") if r.getRoleName() == "list item"][2:3])
act(rows[0], "press")
wait_for("third film", lambda: named("list item", FILMS[2] + ", playing"))
wait_for("length", lambda: spoken().endswith(LENGTH))
press("push button", "Pause")
place = named("slider", "Position").queryValue()
wait_for("length in seconds", lambda: place.maximumValue == 180)
place.currentValue = 10
wait_for("jump", lambda: spoken() in ("0:09 of " + LENGTH, "0:10 of " + LENGTH))
press("push button", "Fast forward")
wait_for("step by the button", lambda: place.currentValue > 15)
act(named("menu item", "Video$"), "showmenu")
act(named("menu item", "Track 1", named("menu item", "Subtitles")), "press")
press("push button", "Snapshot")
wait_for("snapshot", lambda: any(name.endswith(".png") for _, _, names in os.walk(FOLDER + "/shots") for name in names))
press("push button", "Close")
