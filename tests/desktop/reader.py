"""The screen reader of the desktop, but what it would say is printed, a line each."""
import re
import sys

from orca import debug, orca, settings, speech


def hear(_level, text="", _timestamp=False):
    said = re.match(r"SPEECH OUTPUT: '(.*)'[^']*\{", text, re.DOTALL)
    if said:
        print(said[1].strip(), flush=True)


# It also keeps all it says in its log, but a file gets that in blocks, long after it was said.
debug.println = hear
debug.debugLevel = debug.LEVEL_INFO
# Nobody speaks, and a machine that is busy is no reason to give up.
speech.init = lambda: None
settings.timeoutTime = 0
orca.getSettingsManager().activate(None, {"enableBraille": False})
sys.exit(orca.main())
