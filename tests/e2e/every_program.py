"""What other programs read after an edit: photos of several formats that hold languages, keyword paths and companions
of their dates are edited through the window, and read back by ExifTool and by exiv2.

Usage: every_program.py PROGRAM STAGE WORK-FOLDER
"""

import glob
import json
import os
import shutil
import subprocess
import sys
import time

import pyatspi

from driver import Program, click, expect, fill, press, wait_for

# All of them with the slow tests.
ALL = os.environ.get("QUORBEL_SLOW_TESTS")
MADE = ("jpg", "tif", "png", "webp") if ALL else ("jpg", "webp")
GIVEN = ("Stonehenge.heic", "1x1_exif_xmp.jxl", "testDNG.dng") if ALL else ("testDNG.dng",)
WITHOUT_IPTC = (".webp", ".heic", ".jxl")

# What other programs have put in.
BEFORE = [
    "-XMP-dc:Title=Paris at night", "-XMP-dc:Title-de=Paris bei Nacht", "-XMP-dc:Title-fr=Paris la nuit",
    "-IPTC:ObjectName=Paris at night",
    "-IPTC:Keywords=autumn", "-IPTC:Keywords=Paris", "-XMP-dc:Subject=autumn", "-XMP-dc:Subject=Paris",
    "-XMP-lr:HierarchicalSubject=Places|France|Paris", "-XMP-lr:HierarchicalSubject=Seasons|autumn",
    "-XMP-lr:HierarchicalSubject=Places|France|Paris|Montmartre",
    "-XMP-digiKam:TagsList=Places/France/Paris", "-XMP-digiKam:TagsList=Seasons/autumn",
    "-XMP-microsoft:LastKeywordXMP=Places/France/Paris", "-XMP-microsoft:LastKeywordXMP=Seasons/autumn",
    "-XMP-mediapro:CatalogSets=Places|France|Paris",
    "-EXIF:DateTimeOriginal=2024:05:06 14:30:12", "-EXIF:SubSecTimeOriginal=34", "-EXIF:OffsetTimeOriginal=+02:00",
    "-XMP-photoshop:DateCreated=2024:05:06 14:30:12", "-XMP-exif:DateTimeOriginal=2024:05:06 14:30:12",
    "-IPTC:DateCreated=2024:05:06", "-IPTC:TimeCreated=14:30:12+02:00",
    "-XMP-dc:Rights=© 2024 Mara Lindqvist", "-IPTC:CopyrightNotice=© 2024 Mara Lindqvist",
    "-EXIF:Copyright=(c) Lindqvist Studio 2019",
]


def exiftool(*arguments):
    subprocess.run(["exiftool", "-q", "-m", *arguments], check=True, stdout=subprocess.DEVNULL)


def dump(files):
    """All tags of the files, by name, exactly."""
    answer = subprocess.run(["exiftool", "-json", "-G1", "-a", "-n", "-struct", "-all", *files],
                            capture_output=True, text=True, check=False)
    ignored = ("File:", "System:", "ExifTool:", "Composite:", "SourceFile", "IFD0:Strip", "SubIFD",
               "QuickTime:MediaDataSize")
    return {os.path.basename(one["SourceFile"]): {name: value for name, value in one.items()
                                                  if not name.startswith(ignored)}
            for one in json.loads(answer.stdout)}


def exiv2(file):
    """Key to texts, as an independent reader finds them."""
    answer = subprocess.run(["exiv2", "-PEIXkt", file], capture_output=True, check=False)
    found = {}
    for line in answer.stdout.decode("utf-8", "replace").splitlines():
        key, _, text = line.partition(" ")
        found.setdefault(key, []).append(text.strip())
    return found


def make_photos(stage, folder):
    os.makedirs(folder)
    for name in MADE:
        subprocess.run([stage, "photo", f"{folder}/Zürich {name}.{name}"], check=True)
    given = os.path.join(os.environ.get("QUORBEL_TEST_PHOTOS", ""), "valid")
    for name in GIVEN:
        if os.path.exists(os.path.join(given, name)):
            shutil.copyfile(os.path.join(given, name), os.path.join(folder, name))  # without its mode
    files = sorted(glob.glob(folder + "/*"))
    exiftool("-overwrite_original", *BEFORE, *files)
    return files


def select(program, file, *modifiers):
    name = os.path.basename(file)
    click(program.wait("list item", name), *modifiers)
    if not modifiers:
        program.wait("label", name)


def saved(program):
    program.wait("label", "No unsaved changes")


def edit(program, file):
    """A new title, a keyword taken away, a corrected date."""
    select(program, file)
    fill(program, "Title", "Night over the river")
    click(program.wait("text", "Keywords"))
    press("BackSpace")  # Paris is the last one
    if program.find("label", "1 unsaved change"):
        press("BackSpace")  # the first one only chose it
    fill(program, "Date taken", "2024-05-07 09:15")
    program.wait("label", "3 unsaved changes")
    press("ctrl+s")
    saved(program)


def wanted_after(before, has_iptc):
    """What the tags of one photo must be after edit(): nothing but what was meant is another."""
    after = dict(before)
    after.update({"XMP-dc:Title": "Night over the river", "XMP-dc:Subject": "autumn",
                  "XMP-lr:HierarchicalSubject": ["Seasons|autumn", "Places|France|Paris|Montmartre"],
                  "XMP-digiKam:TagsList": "Seasons/autumn", "XMP-microsoft:LastKeywordXMP": "Seasons/autumn",
                  "ExifIFD:DateTimeOriginal": "2024:05:07 09:15:00",
                  "XMP-photoshop:DateCreated": "2024:05:07 09:15:00",
                  "XMP-exif:DateTimeOriginal": "2024:05:07 09:15:00"})
    for gone in ("XMP-mediapro:CatalogSets", "ExifIFD:SubSecTimeOriginal"):
        after.pop(gone, None)
    if has_iptc:
        after.update({"IPTC:ObjectName": "Night over the river", "IPTC:Keywords": "autumn",
                      "IPTC:DateCreated": "2024:05:07", "IPTC:TimeCreated": "09:15:00+02:00"})
    return after


def one(values):
    """Lists of one item as that item: the tool prints either."""
    return {name: value[0] if isinstance(value, list) and len(value) == 1 else value
            for name, value in values.items()}


def differences(found, wanted):
    ignored = ("XMP-x:XMPToolkit", "Photoshop:IPTCDigest", "IPTC:CodedCharacterSet", "IPTC:ApplicationRecordVersion")
    found, wanted = one(found), one(wanted)
    return {name: (found.get(name), wanted.get(name)) for name in sorted(set(found) | set(wanted))
            if found.get(name) != wanted.get(name) and name not in ignored and not name.startswith("PNG:")}


def check_edits(files, before):
    after = dump(files)
    faults = {}
    for file in files:
        name = os.path.basename(file)
        has_iptc = "IPTC:ObjectName" in before[name]
        expect(f"IPTC in {name}", has_iptc, not name.lower().endswith(WITHOUT_IPTC))
        if wrong := differences(after[name], wanted_after(before[name], has_iptc)):
            faults[name] = wrong
    expect("what differs from what was meant", faults, {})


def check_independently(file):
    """The same, as exiv2 reads it."""
    if not shutil.which("exiv2"):
        return
    found = exiv2(file)
    texts = " ".join(found.get("Xmp.dc.title", []))
    for text in ("Night over the river", "Paris bei Nacht", "Paris la nuit"):
        expect(f"“{text}” among the titles of {file}", text in texts, True)
    for key in ("Xmp.lr.hierarchicalSubject", "Xmp.digiKam.TagsList", "Xmp.MicrosoftPhoto.LastKeywordXMP",
                "Xmp.mediapro.CatalogSets"):
        paths = " ".join(found.get(key, [])).replace("|", "/")
        expect(f"Paris in {key} of {file}", "Places/France/Paris" in paths.replace("Paris/Montmartre", ""), False)
    for key in ("Exif.Photo.DateTimeOriginal", "Xmp.exif.DateTimeOriginal", "Xmp.photoshop.DateCreated",
                "Iptc.Application2.DateCreated"):
        for text in found.get(key, []):
            expect(f"{key} of {file}", text[:10].replace(":", "-"), "2024-05-07")


def undo(program, what):
    """Through the menu, as soon as it offers to take just this save back."""
    def offered():
        press("alt+e")
        item = program.wait("menu item", f"Undo Save of {what}")
        if item.getState().contains(pyatspi.STATE_SENSITIVE):
            return True
        press("Escape", "Escape")
        return False
    wait_for(f"the save of {what} to be done", offered)
    press("v")


def undo_all(program, files, before):
    """The newest save first, as the menu names them."""
    for file in reversed(files):
        name = os.path.basename(file)
        program.wait("label", "No unsaved changes")
        undo(program, f"“{name}”")
        wait_for(f"all tags of {name} to be back", lambda: not differences(dump([file])[name], before[name]))


COPYRIGHT = ("XMP-dc:Rights", "IPTC:CopyrightNotice", "IFD0:Copyright")


def use_another_place(program, file):
    """The mark under the field, its places, and the one that is not shown."""
    select(program, file)
    wait_for("the mark of the copyright", lambda: next(
        (click(node) or True for node in program.all("push button") if node.name.startswith("Copyright: 1 of 3 places")),
        False))
    click(program.wait("push button", "Use this one"))
    program.wait("label", "1 unsaved change")
    program.picture("used")
    press("ctrl+s")
    saved(program)
    found = dump([file])[os.path.basename(file)]
    expect("the copyright in all places", [found[tag] for tag in COPYRIGHT], ["(c) Lindqvist Studio 2019"] * 3)


def make_agree(program, files, before):
    """All photos at once: what each shows goes to all of its places."""
    select(program, files[0])
    press("ctrl+a")
    program.wait("filler", f"Editing {len(files)} photos")
    program.picture("disagree")
    wait_for("the command to be there", lambda: press("alt+e") or program.find("menu item", "Make Them Agree"))
    press("g")

    def agree():
        found = dump(files)
        return all(found[name].get(tag) == before[name]["XMP-dc:Rights"]
                   for name in found for tag in COPYRIGHT if tag in before[name])
    wait_for("all places to hold the same", agree)
    saved(program)


def main():
    path, stage, work = sys.argv[1:4]
    folder = os.path.join(work, "Every program")
    files = make_photos(stage, folder)
    before = dump(files)
    settings = os.path.join(os.environ["XDG_CONFIG_HOME"], "Quorbel")
    os.makedirs(settings, exist_ok=True)
    with open(os.path.join(settings, "Quorbel.ini"), "w", encoding="utf-8") as conf:
        conf.write("[General]\nsaveDontAsk=true\nconfirmMassEdit=false\nbackupOriginals=false\nlastUpdateCheck="
                   + time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime()) + "\n")
    program = Program(path, stage, os.environ.get("QUORBEL_E2E_PICTURES"))
    program.start(folder)
    try:
        for file in files:
            edit(program, file)
        program.picture("edited")
        check_edits(files, before)
        for file in files:
            check_independently(file)
        undo_all(program, files, before)
        jpeg = next(file for file in files if file.endswith(".jpg"))
        use_another_place(program, jpeg)
        undo_all(program, [jpeg], before)
        make_agree(program, files, before)
        undo(program, f"{len(files)} photos")
        wait_for("all tags to be back", lambda: not any(
            differences(now, before[name]) for name, now in dump(files).items()))
    except BaseException:
        program.picture("failure")
        raise
    finally:
        if program.process.poll() is None:
            program.process.kill()
    print("every program reads the same")


if __name__ == "__main__":
    main()
