"""A person's day with the program: every step through the window, every outcome in the files.

Usage: end_to_end.py PROGRAM STAGE WORK-FOLDER
"""

import os
import subprocess
import sys
import time

from driver import (Program, click, expect, fill, focused_text, is_active, press, run, settled, tags, text_of, type_into,
                    wait_for, write)


def names(program):
    return [item.name for item in program.all("list item") if item.name.endswith(".jpg")]


def photo(program, name):
    return program.wait("list item", name)


def saved(program):
    program.wait("label", "No unsaved changes")


def open_folder(program, folder):
    """Through the open panel, by keyboard."""
    program.wait("push button", "Open Folder…")
    program.picture("launch")
    press("ctrl+o")
    program.wait("dialog")
    type_into(wait_for("the name field to take the keyboard", lambda: focused_text(program)), folder)
    press("Return")
    wait_for("the folder's photos", lambda: len(names(program)) == 8)
    program.picture("folder")


def edit_one(program, folder):
    click(photo(program, "photo 2.jpg"))
    program.wait("label", "photo 2.jpg")
    fill(program, "Title", "Last light on the lake")
    fill(program, "Creator", "Mara Lindqvist")
    click(program.wait("text", "Keywords"))
    write("lake")
    press("Return")
    program.wait("label", "3 unsaved changes")
    program.picture("edited")
    press("ctrl+s")
    program.wait("label", "Save changes to “photo 2.jpg”?")
    program.picture("save-dialog")
    press("Return")
    saved(program)
    expect("the saved photo", tags(f"{folder}/photo 2.jpg", "Title", "ObjectName", "Artist", "Creator", "By-line",
                                   "Keywords", "Subject"),
           {"XMP-dc:Title": "Last light on the lake", "IPTC:ObjectName": "Last light on the lake",
            "IFD0:Artist": "Mara Lindqvist", "XMP-dc:Creator": "Mara Lindqvist", "IPTC:By-line": "Mara Lindqvist",
            "IPTC:Keywords": "lake", "XMP-dc:Subject": "lake"})
    expect("backup", os.path.exists(f"{folder}/photo 2.jpg_original"), True)


def edit_five(program, folder):
    click(photo(program, "photo 1.jpg"))
    click(photo(program, "photo 5.jpg"), "shift")
    program.wait("filler", "Editing 5 photos")
    click(program.wait("text", "Keywords"))
    write("autumn")
    press("Return")
    program.wait("label", "1 field → 5 files")
    program.picture("batch")
    click(program.wait("push button", "Apply to 5", last=True))
    program.wait("label", "Apply changes to 5 photos?")
    program.picture("batch-dialog")
    click(program.wait("push button", "Apply to 5 Photos"))
    saved(program)
    for number, wanted in ((1, "autumn"), (2, ["lake", "autumn"]), (5, "autumn")):
        expect(f"keywords of photo {number}", tags(f"{folder}/photo {number}.jpg", "IPTC:Keywords"),
               {"IPTC:Keywords": wanted})
    expect("a photo that was not selected", tags(f"{folder}/photo 6.jpg", "Keywords"), {})


def rename(program, folder):
    click(photo(program, "photo 2.jpg"))
    click(program.wait("push button", "Rename…"))
    program.wait(None, "Rename File")
    program.picture("rename")
    press("ctrl+a")
    write("%Title%")
    press("Return")
    photo(program, "Last-light-on-the-lake.jpg")
    expect("the renamed file", os.path.exists(f"{folder}/Last-light-on-the-lake.jpg"), True)
    expect("its backup", os.path.exists(f"{folder}/Last-light-on-the-lake.jpg_original"), True)
    expect("the old name", os.path.exists(f"{folder}/photo 2.jpg"), False)


def search_and_sort(program):
    click(program.wait("text", "Search"))
    write("LIGHT")
    wait_for("one photo to be left", lambda: names(program) == ["Last-light-on-the-lake.jpg"])
    press("ctrl+a", "BackSpace")
    wait_for("all photos to be back", lambda: len(names(program)) == 8)
    click(program.wait("push button", "Sort images"))
    time.sleep(0.5)
    press("Down", "Down", "Return")  # Name (Z–A)
    wait_for("the order to turn", lambda: names(program)[0] == "photo 8.jpg")
    program.picture("sorted")


def preview(program):
    click(program.wait("push button", "Hide preview"))
    program.wait("push button", "Show preview")
    program.picture("no-preview")
    click(program.wait("push button", "Show preview"))
    program.wait("push button", "Hide preview")


def appearance(program):
    press("ctrl+comma")
    wait_for("the settings to take the keyboard",
             lambda: any(window.name == "Settings" and is_active(window) for window in program.windows()))
    press("Tab", "Right", "Right")  # System, Light, Dark
    expect("the stored appearance", stored("appearance"), "dark")
    program.picture("dark")
    press("Left", "Left", "Escape")
    wait_for("the settings to close", lambda: len(program.windows()) == 1)


def stored(key):
    """A preference, once it is written."""
    file = os.path.join(os.environ["XDG_CONFIG_HOME"], "Quorbel", "Quorbel.ini")

    def look():
        with open(file, encoding="utf-8") as lines:
            return next((line.split("=", 1)[1].strip() for line in lines if line.startswith(key + "=")), None)
    return wait_for(f"preference {key}", look)


def drop(program, stage, folder):
    source = subprocess.Popen([stage, "drag", folder])
    try:
        target = settled(program.wait("list", "Photos"))
        time.sleep(1)
        run("xdotool", "mousemove", "30", "30", "mousedown", "1")
        for step in range(1, 11):
            run("xdotool", "mousemove", str(30 + (target[0] - 30) * step // 10), str(30 + (target[1] - 30) * step // 10))
            time.sleep(0.08)
        program.picture("drop")
        run("xdotool", "mouseup", "1")
        wait_for("the dropped folder", lambda: program.find("frame").name == os.path.basename(folder))
        wait_for("its photos", lambda: len(names(program)) == 3)
    finally:
        source.kill()
        source.wait()


def quit_with_edits(program, folder):
    click(photo(program, "photo 1.jpg"))
    fill(program, "Title", "never to be saved")
    press("ctrl+q")
    program.wait("label", "Save changes to “photo 1.jpg”?")
    press("Escape")
    program.wait_gone("label", "Save changes to “photo 1.jpg”?")
    expect("the edit after Cancel", text_of(program.wait("text", "Title")), "never to be saved")
    press("ctrl+q")
    click(program.wait("push button", "Don't Save"))
    expect("the program's end", program.process.wait(timeout=20), 0)
    expect("the photo", tags(f"{folder}/photo 1.jpg", "Title"), {})


def main():
    path, stage, work = sys.argv[1:4]
    pictures = os.environ.get("QUORBEL_E2E_PICTURES")
    folder, other = os.path.join(work, "Zürichsee"), os.path.join(work, "dropped")
    for place, count in ((folder, 8), (other, 3)):
        os.makedirs(place)
        subprocess.run([stage, "photos", place, str(count)], check=True)
    settings = os.path.join(os.environ["XDG_CONFIG_HOME"], "Quorbel")
    os.makedirs(settings)
    with open(os.path.join(settings, "Quorbel.ini"), "w", encoding="utf-8") as conf:
        # Checked for updates just now: the test touches no network.
        conf.write("[General]\nlastUpdateCheck=" + time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime()) + "\n")

    program = Program(path, stage, pictures)
    program.start()
    try:
        open_folder(program, folder)
        edit_one(program, folder)
        edit_five(program, folder)
        rename(program, folder)
        search_and_sort(program)
        preview(program)
        appearance(program)
        drop(program, stage, other)
        quit_with_edits(program, other)
    except BaseException:
        program.picture("failure")
        raise
    finally:
        if program.process.poll() is None:
            program.process.kill()
    print("end-to-end test passed")


if __name__ == "__main__":
    main()
