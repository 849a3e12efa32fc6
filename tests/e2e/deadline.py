"""Forty frames of a match against the clock: a template, a code, keywords for all and two taken away, a wrong camera
clock, new names, gaps found and filled; everything through the window, by keyboard where a person would. Counts what
the hands did.

Usage: deadline.py PROGRAM STAGE WORK-FOLDER
"""

import datetime
import json
import os
import shutil
import subprocess
import sys
import time

import driver
from driver import Program, click, expect, press, text_of, wait_for, write

FRAMES = 40
CLOCK_WAS_SLOW = datetime.timedelta(hours=1, minutes=2, seconds=30)
FIRST = datetime.datetime(2026, 5, 9, 13, 40, 7)  # by the camera's clock
MISSING_PLACE = range(30, 35)  # frames whose place nobody has typed yet
CODES = "js\tJane Smith, goalkeeper\nrb\tRavi Bose, referee\n"
TEMPLATE = {
    "quorbelTemplate": 1, "name": "Cup final", "shortcut": 1,
    "fields": [
        {"field": "title", "mode": "set if empty", "text": "Cup final, frame %Counter:01%"},
        {"field": "headline", "mode": "set", "text": "Cup final, %Date:d MMMM yyyy%"},
        {"field": "creator", "mode": "set", "text": "Mara Lindqvist"},
        {"field": "copyright", "mode": "set", "text": "© %Date:yyyy% %Creator|Mara Lindqvist%"},
    ],
}


class Hands:
    """What the hands did: keys pressed, letters typed, clicks."""

    def __init__(self):
        self.keys = self.letters = self.clicks = 0
        self.begin = time.monotonic()

    def press(self, *keys):
        self.keys += len(keys)
        press(*keys)

    def write(self, text):
        self.letters += len(text)
        write(text)

    def click(self, node, *modifiers):
        self.clicks += 1
        click(node, *modifiers)

    def summary(self):
        return (f"{self.keys} keys, {self.letters} letters, {self.clicks} clicks, "
                f"{time.monotonic() - self.begin:.0f} s")


def camera_time(frame):
    return FIRST + datetime.timedelta(seconds=41 * frame)


def make_photos(stage, folder):
    """As the camera left them, with what an earlier edit put in."""
    os.makedirs(folder)
    subprocess.run([stage, "photos", folder, str(FRAMES)], check=True)
    values = []
    for frame in range(FRAMES):
        path = f"{folder}/IMG_{4001 + frame}.jpg"
        os.rename(f"{folder}/photo {frame + 1}.jpg", path)
        taken = camera_time(frame)
        one = {"SourceFile": path, "EXIF:DateTimeOriginal": taken.strftime("%Y:%m:%d %H:%M:%S"),
               "EXIF:CreateDate": taken.strftime("%Y:%m:%d %H:%M:%S"), "EXIF:SubSecTimeOriginal": f"{frame:02d}",
               "EXIF:OffsetTimeOriginal": "+02:00", "IPTC:Keywords": ["football", "training"],
               "XMP-dc:Subject": ["football", "training"]}
        if frame % 2 == 0:
            one.update({"IPTC:DateCreated": taken.strftime("%Y:%m:%d"), "IPTC:TimeCreated": taken.strftime("%H:%M:%S+02:00"),
                        "XMP-photoshop:DateCreated": taken.strftime("%Y:%m:%d %H:%M:%S")})
        if frame % 3 == 0:
            one["IPTC:Keywords"] = one["XMP-dc:Subject"] = ["football", "training", "regata"]
        if frame not in MISSING_PLACE:
            one.update({"XMP-photoshop:City": "Zürich", "IPTC:City": "Zürich"})
        if frame == 7:
            one.update({"XMP-dc:Title": "Kick-off", "IPTC:ObjectName": "Kick-off"})
        values.append(one)
    with open(f"{folder}/values.json", "w", encoding="utf-8") as file:
        json.dump(values, file)
    subprocess.run(["exiftool", "-q", "-overwrite_original", "-codedcharacterset=utf8", f"-json={folder}/values.json",
                    folder, "-ext", "jpg"], check=True)
    os.remove(f"{folder}/values.json")


def prepare(home):
    """What a photographer has made before the match: settings, codes and a template."""
    settings = os.path.join(os.environ["XDG_CONFIG_HOME"], "Quorbel")
    os.makedirs(settings, exist_ok=True)
    codes = os.path.join(home, "codes.tsv")
    with open(codes, "w", encoding="utf-8") as file:
        file.write(CODES)
    with open(os.path.join(settings, "Quorbel.ini"), "w", encoding="utf-8") as file:
        file.write(f"[General]\nbackupOriginals=false\ncodeFile={codes}\nlastUpdateCheck="
                   + time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime()) + "\n")
    templates = os.path.join(os.environ["XDG_DATA_HOME"], "Quorbel", "Quorbel", "templates")
    os.makedirs(templates, exist_ok=True)
    with open(os.path.join(templates, "Cup final.json"), "w", encoding="utf-8") as file:
        json.dump(TEMPLATE, file)


def select_all(program, hands, count):
    hands.press("ctrl+a")
    program.wait("filler", f"Editing {count} photos")


def apply_to(program, hands, count, done=("label", "No unsaved changes")):
    hands.press("ctrl+s")
    program.wait("label", f"Apply changes to {count} photos?")
    program.picture(f"apply-{count}")
    hands.press("Return")
    program.wait(*done)


def text_field(program, label):
    """The editor of a field, whatever it shows."""
    return program.wait("text", label)


def take_away(program, hands, keyword):
    """By the cross at the end of its chip."""
    chip = wait_for(f"the chip of {keyword}", lambda: next(
        node for node in program.all("push button") if node.name.startswith(f"{keyword}, in ")))
    box = driver.box_of(chip)
    hands.clicks += 1
    driver.click_at(box.x + box.width - 10, box.y + box.height // 2)
    wait_for(f"{keyword} to be taken away", lambda: next(
        node for node in program.all("push button") if node.name.startswith(f"{keyword}, ") and "taken away" in node.name))


def caption(program, hands):
    select_all(program, hands, FRAMES)
    hands.press("ctrl+1")
    program.wait("label", f"4 fields → {FRAMES} files")
    program.picture("filled")
    hands.click(text_field(program, "Keywords"))
    hands.write("final")
    hands.press("Return")
    take_away(program, hands, "training")
    take_away(program, hands, "regata")
    description = text_field(program, "Description")
    hands.click(description)
    hands.write("Save by =js=")
    wait_for("the code to be replaced", lambda: text_of(description) == "Save by Jane Smith, goalkeeper")
    program.picture("captioned")
    apply_to(program, hands, FRAMES)


def wait_enabled(program, button):
    wait_for(f"“{button}” to be possible", lambda: program.find("push button", button).getState().contains(
        driver.pyatspi.STATE_SENSITIVE))


def menu(program, hands, key, name):
    """A command of a menu by its name, as one finds it the first time."""
    hands.press(f"alt+{key}")
    hands.click(wait_for(f"menu item {name}", lambda: next(
        node for node in program.all("menu item") if node.name == name)))


def shift_time(program, hands):
    menu(program, hands, "e", "Shift Time…")
    program.wait(None, f"Shift Time of {FRAMES} Photos")
    for label, number in (("Hours", "1"), ("Minutes", "2"), ("Seconds", "30")):
        hands.click(program.wait("text", label))
        hands.press("ctrl+a")
        hands.write(number)
    wait_enabled(program, f"Shift {FRAMES} Photos")
    program.picture("shift")
    hands.press("Return")


def rename(program, hands, folder):
    hands.press("shift+F2")
    program.wait(None, f"Rename {FRAMES} Files")
    hands.press("ctrl+a")
    hands.write("%Date%_FINAL_%Counter%")
    wait_enabled(program, f"Rename {FRAMES}")  # once the shift is written
    program.picture("rename")
    hands.press("Return")
    wait_for("the last photo's new name", lambda: os.path.exists(f"{folder}/2026-05-09_FINAL_{FRAMES:04d}.jpg"))


def fill_gaps(program, hands):
    hands.click(program.wait("push button", "Filter images"))
    hands.click(wait_for("the row of photos without a place", lambda: next(
        node for node in program.all("check box") if node.name.startswith("No place"))))
    program.picture("filter")
    hands.press("Escape")
    select_all(program, hands, len(MISSING_PLACE))
    hands.click(text_field(program, "Place"))
    hands.write("Altstetten stadium")
    hands.press("Tab")
    program.wait("label", f"1 field → {len(MISSING_PLACE)} files")
    apply_to(program, hands, len(MISSING_PLACE), done=("label", "No photo selected"))


def dump(folder, *options):
    """All tags of the folder's photos, by name and exactly."""
    answer = subprocess.run(["exiftool", "-json", "-G1", "-a", "-n", "-struct", *options, "-all", folder],
                            capture_output=True, text=True, check=False)
    ignored = ("File:", "System:", "ExifTool:", "Composite:", "SourceFile", "XMP-x:XMPToolkit", "Photoshop:IPTCDigest",
               "IPTC:ApplicationRecordVersion", "IPTC:CodedCharacterSet", "IFD0:YCbCrPositioning", "IFD0:ResolutionUnit",
               "IFD0:XResolution", "IFD0:YResolution", "ExifIFD:ExifVersion", "ExifIFD:ColorSpace",
               "ExifIFD:ComponentsConfiguration", "ExifIFD:FlashpixVersion", "JFIF:")
    return {os.path.basename(one["SourceFile"]): {name: value for name, value in one.items()
                                                  if not name.startswith(ignored)}
            for one in json.loads(answer.stdout)}


def wanted(frame, before):
    """What the photo has to hold after all of it: nothing but what was meant is another."""
    taken = camera_time(frame) + CLOCK_WAS_SLOW
    stamp = taken.strftime("%Y:%m:%d %H:%M:%S")
    after = dict(before)
    title = "Kick-off" if frame == 7 else f"Cup final, frame {frame + 1:02d}"
    place = "Altstetten stadium" if frame in MISSING_PLACE else "Zürich"
    text = "Save by Jane Smith, goalkeeper"
    after.update({
        "XMP-dc:Title": title, "IPTC:ObjectName": title, "XMP-photoshop:Headline": "Cup final, 9 May 2026",
        "IPTC:Headline": "Cup final, 9 May 2026", "XMP-dc:Creator": ["Mara Lindqvist"], "IPTC:By-line": "Mara Lindqvist",
        "IFD0:Artist": "Mara Lindqvist", "XMP-dc:Rights": "© 2026 Mara Lindqvist",
        "IPTC:CopyrightNotice": "© 2026 Mara Lindqvist", "IFD0:Copyright": "© 2026 Mara Lindqvist",
        "XMP-dc:Description": text, "IPTC:Caption-Abstract": text, "IFD0:ImageDescription": text,
        "XMP-dc:Subject": ["football", "final"], "IPTC:Keywords": ["football", "final"],
        "XMP-photoshop:City": place, "IPTC:City": place,
        "ExifIFD:DateTimeOriginal": stamp, "ExifIFD:CreateDate": stamp,
    })
    if frame % 2 == 0:
        after.update({"XMP-photoshop:DateCreated": stamp, "IPTC:DateCreated": taken.strftime("%Y:%m:%d"),
                      "IPTC:TimeCreated": taken.strftime("%H:%M:%S+02:00")})
    return after


def one(values):
    """Lists of one item as that item: the tool prints either."""
    return {name: value[0] if isinstance(value, list) and len(value) == 1 else value for name, value in values.items()}


def check(folder, before):
    after = dump(folder)
    expect("the names", sorted(after), [f"2026-05-09_FINAL_{number:04d}.jpg" for number in range(1, FRAMES + 1)])
    faults = {}
    for frame in range(FRAMES):
        found = one(after[f"2026-05-09_FINAL_{frame + 1:04d}.jpg"])
        meant = one(wanted(frame, before[f"IMG_{4001 + frame}.jpg"]))
        if wrong := {name: (found.get(name), meant.get(name)) for name in sorted(set(found) | set(meant))
                     if found.get(name) != meant.get(name)}:
            faults[frame] = wrong
    expect("what differs from what was meant", faults, {})


def check_independently(folder):
    """The same, as exiv2 reads it."""
    if not shutil.which("exiv2"):
        return
    for frame in (0, 7, 31, FRAMES - 1):
        answer = subprocess.run(["exiv2", "-PEIXkt", f"{folder}/2026-05-09_FINAL_{frame + 1:04d}.jpg"],
                                capture_output=True, check=False).stdout.decode("utf-8", "replace")
        found = {}
        for line in answer.splitlines():
            key, _, text = line.partition(" ")
            found.setdefault(key, []).append(text.strip())
        taken = camera_time(frame) + CLOCK_WAS_SLOW
        expect(f"frame {frame}: keywords in IPTC", sorted(found["Iptc.Application2.Keywords"]), ["final", "football"])
        expect(f"frame {frame}: keywords in XMP", found["Xmp.dc.subject"], ["football, final"])
        expect(f"frame {frame}: date", found["Exif.Photo.DateTimeOriginal"], [taken.strftime("%Y:%m:%d %H:%M:%S")])
        expect(f"frame {frame}: caption", found["Iptc.Application2.Caption"], ["Save by Jane Smith, goalkeeper"])


def times(photos):
    return {name: tags["ExifIFD:DateTimeOriginal"] for name, tags in photos.items()}


def take_back(program, name):
    """Through the menu, as soon as it offers to take just this back."""
    def offered():
        press("alt+e")
        item = next((node for node in program.all("menu item") if node.name == name), None)
        if item and item.getState().contains(driver.pyatspi.STATE_SENSITIVE):
            click(item)
            return True
        press("Escape", "Escape")
        return False
    wait_for(f"“{name}” to be offered", offered)


def main():
    path, stage, work = sys.argv[1:4]
    folder = os.path.join(work, "Match")
    make_photos(stage, folder)
    before = dump(folder)
    prepare(work)
    program = Program(path, stage, os.environ.get("QUORBEL_E2E_PICTURES"))
    program.start(folder)
    try:
        wait_for("all to be read", lambda: program.find("label", "IMG_4001.jpg"))
        hands = Hands()
        caption(program, hands)
        shift_time(program, hands)
        rename(program, hands, folder)
        fill_gaps(program, hands)
        done = hands.summary()
        check(folder, before)
        check_independently(folder)
        press("ctrl+shift+f")
        take_back(program, f"Undo Save of {len(MISSING_PLACE)} photos")
        take_back(program, f"Undo Rename of {FRAMES} Photos")
        wait_for("the old names", lambda: os.path.exists(f"{folder}/IMG_{4000 + FRAMES}.jpg"))
        take_back(program, f"Undo Shift Time of {FRAMES} photos")
        wait_for("the old times", lambda: times(dump(folder)) == times(before), patience=60)
        take_back(program, f"Undo Save of {FRAMES} photos")
        wait_for("all tags and names to be back", lambda: dump(folder) == before, patience=60)
    except BaseException:
        program.picture("failure")
        raise
    finally:
        if program.process.poll() is None:
            program.process.kill()
    print(f"forty photos: {done}")


if __name__ == "__main__":
    main()
