#!/usr/bin/env python3
"""Many programs work on one shared database at once, and nothing may get lost.

    tools/endurance/sharedStore.py PROGRAM_FOLDER [--data FILE] [--clients 20] [--minutes 10] [--run N]
                                   [--kill-server SECONDS] [--kill-clients PERCENT] [--scaling]

A server of its own (tests/store/postgres.sh) gets a database, which is cloned once for each client. Each
client edits its file at random, 1 to 10 edits, and has kivzp-cli bring it together with the store, with
--mine or --theirs, again and again. What it changed and what a sync told is kept as a line of JSON in
CLIENT/log. --kill-server kills the server every so many seconds as a power cut would, and starts it again
up to three seconds later; --kill-clients kills that part of the syncs at a random moment. At the end all
sync until nothing moves. Then

  - all files are the same, and the same as a new clone: groups, materials, their order, all texts;
  - each edit that was sent is in the store's history, unless somebody else changed the same and --theirs was
    given; and nothing is in the history that nobody edited;
  - each row's history leads without a gap from its beginning to what it is now, and no release is missing;
  - all files are valid, what lies beside them fits, and nothing is left over.

Anything else is told, the exit code is 1, and the folders stay. --scaling works with 1, 2, 5, 10 and 20
clients for a short time each (--seconds) and tells what each of them got done.
"""

import argparse
import copy
import json
import multiprocessing
import os
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import xml.etree.ElementTree as ET
from collections import Counter, defaultdict
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SERVER = ROOT / "tests" / "store" / "postgres.sh"
NAME = "endurance"
PATIENCE = 120  # seconds after which a sync hangs
NESTED = ("manufacturers", "suppliers")
TEXTS = ["100n 0603", "7", "-3,5 ±1%", "zażółć gęślą jaźń", "ĄĘ ЖΩ µ", "日本語 עברית", "🚀 e\u0301", "  two  spaces  ",
         "a\nb", "a\tb", "& <b> \"q\" 'x' ]]>", "\u00a0\u200b", "\\n \\t \\", "%1 ? $1 {}", "x" * 300, "'; drop table x; --"]

ET.register_namespace("xsi", "http://www.w3.org/2001/XMLSchema-instance")


# --- Documents ---------------------------------------------------------------------------------------

def plain(element):
    """What an element says, however it is written."""
    children = tuple(plain(child) for child in element)
    text = "" if children else element.text or ""
    return element.tag, tuple(sorted(element.attrib.items())), text, children


def nested(text):
    """The same of a text of the store."""
    return plain(ET.fromstring(text))[3] if text else ()


def texts_of(record):
    """A record's fields under the names of the store's columns."""
    if record.tag == "d_group":
        return dict(record.attrib)
    texts = {}
    for child in record:
        if child.tag == "information":
            texts.update((part.tag, part.text or "") for part in child)
        elif child.tag in NESTED:
            texts[child.tag] = plain(child)[3]
        else:
            texts[child.tag] = child.text or ""
    return texts


def content_of(file):
    """Groups and materials in their order, with all texts."""
    return [(texts_of(group), [texts_of(material) for material in group.iter("material")])
            for group in ET.parse(file).getroot().iter("d_group")]


def difference(first, second):
    """The first thing in which two contents differ; empty when there is none."""
    names = [[group.get("name") for group, _ in side] for side in (first, second)]
    if names[0] != names[1]:
        return "groups: %s" % [pair for pair in zip(*names) if pair[0] != pair[1]][:1] or "their number"
    for (group, mine), (other, theirs) in zip(first, second):
        if group != other:
            return "group %s: %s, %s" % (group["name"], group, other)
        ktms = [[material.get("d_ktm") for material in side] for side in (mine, theirs)]
        if ktms[0] != ktms[1]:
            only = [sorted(set(ktms[i]) - set(ktms[1 - i])) for i in (0, 1)]
            return "group %s: %s" % (group["name"], "only in one %s, other %s" % tuple(only) if any(only)
                                     else "another order")
        for material, another in zip(mine, theirs):
            for field in sorted(set(material) | set(another)):
                if material.get(field, "") != another.get(field, ""):
                    return "%s %s: %r, %r" % (material["d_ktm"], field, material.get(field), another.get(field))
    return ""


def known_of(file):
    """What lies beside a shared file: its first lines, and table, row and key of each record."""
    lines = Path(str(file) + ".shared").read_text(encoding="utf-8").split("\n")
    count = next(i for i, line in enumerate(lines) if line.startswith("rows\t"))
    head = dict(line.split("\t", 1) for line in lines[1:count])
    rows = [line.split("\t") for line in lines[count + 1:-1]]
    if lines[-1] or len(rows) != int(lines[count].split("\t")[1]) or any(len(row) != 7 for row in rows):
        raise ValueError("%s.shared is damaged" % file)
    return head, [(int(row[0]), row[1], unescaped(row[6])) for row in rows]


def unescaped(text):
    return text.replace("\\\\", "\0").replace("\\n", "\n").replace("\\t", "\t").replace("\0", "\\")


# --- A client ----------------------------------------------------------------------------------------

class Client:
    """One copy of the database, that is edited and brought together with the store."""

    def __init__(self, program, address, folder, number, run):
        self.program = program
        self.address = address
        self.folder = folder / ("client%02d" % number)
        self.number = number
        self.file = self.folder / "database.xml"
        self.chance = random.Random("%s %s" % (run, number))
        self.made = 0
        self.environment = dict(os.environ, HOME=str(self.folder / "home"), TMPDIR=str(self.folder / "home"),
                                USER="person%02d" % number, LC_ALL="C.UTF-8", QT_QPA_PLATFORM="offscreen")
        (self.folder / "home").mkdir(parents=True, exist_ok=True)

    def cli(self, *arguments, kill_after=None):
        """Code, output and faults of kivzp-cli; code -9 when it was killed."""
        process = subprocess.Popen([self.program / "kivzp-cli", *map(str, arguments)], env=self.environment,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        try:
            out, err = process.communicate(timeout=PATIENCE if kill_after is None else kill_after)
        except subprocess.TimeoutExpired:
            process.kill()
            out, err = process.communicate()
            err += "" if kill_after else "no end within %d s" % PATIENCE
        return process.returncode, out, err.strip()

    def clone(self):
        code, _, err = self.cli("clone", NAME, self.file, "--store", self.address)
        if code:
            raise RuntimeError("clone: " + err)

    def sync(self, how, kill_after=None):
        """What a sync told, with the seconds it took."""
        begun = time.monotonic()
        code, out, err = self.cli("sync", self.file, "--" + how, "--json", "--store", self.address,
                                  kill_after=kill_after)
        told = {"time": time.time(), "how": how, "seconds": time.monotonic() - begun, "code": code, "fault": err}
        if code == 0:
            told.update(json.loads(out)["files"][0])
        return told

    # What is in the file, as of the last sync.
    def read(self):
        self.root = ET.parse(self.file).getroot()
        head, rows = known_of(self.file)
        self.store_program = head["program"]
        self.release = int(head["release"])
        records = self.groups() + [material for group in self.groups() for material in group.iter("material")]
        keys = [record.get("name") if record.tag == "d_group"
                else record.findtext("d_ktm") or "\n" + record.findtext("d_name", "") for record in records]
        if keys != [key for _, _, key in rows]:
            raise ValueError("what lies beside the file does not fit it")
        self.ids = {record: row for record, (_, row, _) in zip(records, rows)}
        self.base = self.state()

    def groups(self):
        return list(self.root.iter("d_group"))

    def state(self):
        """Table, group and content of each record by its row; by the record itself where it has none."""
        state = {}
        for group in self.groups():
            state[self.ids.get(group, group)] = ("material_group", "", ET.tostring(ET.Element("d_group", group.attrib)))
            for material in group.iter("material"):
                state[self.ids.get(material, material)] = ("material", self.ids.get(group, group.get("name")),
                                                           ET.tostring(material))
        return state

    def edits(self):
        """What the file is another one in than at the last sync."""
        now = self.state()
        found = [{"what": "removed", "row": row} for row in self.base if row not in now]
        for row, (table, below, content) in now.items():
            if not isinstance(row, str):
                found.append({"what": "added", "table": table, "below": below, "texts": texts_of(row)})
                continue
            _, base_below, base_content = self.base[row]
            if below != base_below:
                found.append({"what": "moved", "row": row, "after": below,
                              "ktm": ET.fromstring(content).findtext("d_ktm")})
            if content != base_content:
                texts, base_texts = (texts_of(ET.fromstring(one)) for one in (content, base_content))
                found += [{"what": "changed", "row": row, "field": field, "after": text, "ktm": texts.get("d_ktm"),
                           "another": table == "material_group" and not self.holds_the_same(row, now)}
                          for field, text in texts.items() if text != base_texts.get(field, "")]
        return found

    def holds_the_same(self, group, now):
        """Whether a group still has half of its materials. A renamed one is known by them."""
        before, after = ({ET.fromstring(content).findtext("d_ktm") for _, below, content in state.values()
                          if below == group} for state in (self.base, now))
        return bool(before) and 2 * len(before & after) >= len(before)

    def write(self):
        ET.ElementTree(self.root).write(self.file, encoding="UTF-8", xml_declaration=True)

    def new_text(self):
        self.made += 1
        kind = self.chance.random()
        # Two that write the same are at one.
        return "" if kind < 0.08 else "the same" if kind < 0.12 else "%s %d/%d" % (
            self.chance.choice(TEXTS), self.number, self.made)

    def new_ktm(self):
        self.made += 1
        return "9%05d-%02d.%02d-%05d" % (self.number, self.made // 10 ** 7, self.made // 10 ** 5 % 100,
                                         self.made % 10 ** 5)

    def any_material(self):
        """A group and a material in it. Everybody likes some of them better."""
        pairs = [(group, material) for group in self.groups() for material in group.iter("material")]
        return self.chance.choice(pairs[:12] if self.chance.random() < 0.25 else pairs)

    def put(self, group, material):
        group.insert(self.chance.randint(0, len(group)), material)

    def edit(self):
        what = self.chance.choices(["text", "source", "add", "remove", "rename", "move", "order", "group", "new group",
                                    "no group"], [50, 12, 8, 6, 6, 8, 4, 3, 1, 1])[0]
        group, material = self.any_material()
        if what == "text":
            fields = [field for field in material.iter() if field.tag not in ("d_ktm", "material", "information")]
            ends = {id(part) for name in NESTED for part in material.find(name).iter()}
            self.chance.choice([field for field in fields if id(field) not in ends]).text = self.new_text()
        elif what == "source":
            self.edit_source(material.find(self.chance.choice(NESTED)))
        elif what == "add":
            material = copy.deepcopy(material)
            material.find("d_ktm").text = self.new_ktm()
            # One that is the same but for its KTM may be taken for the other, when that is renamed, too.
            material.find("d_name").text = "new " + material.findtext("d_ktm")
            self.put(self.chance.choice(self.groups()), material)
        elif what == "rename":
            material.find("d_ktm").text = self.new_ktm()
        elif what == "remove":
            group.remove(material)
        elif what in ("move", "order"):
            group.remove(material)
            self.put(self.chance.choice(self.groups()) if what == "move" else group, material)
        elif what == "group":
            group.set("name", "Group " + self.new_ktm())
        elif what == "new group":
            fresh = ET.Element("d_group", {"name": "New " + self.new_ktm(), "cpv": group.get("cpv", "")})
            self.root.append(fresh)
            group.remove(material)
            fresh.append(material)
        elif len(group) <= 8 and len(self.groups()) > 5:
            self.root.remove(group)

    def edit_source(self, sources):
        kind = self.chance.random()
        one = self.chance.choice(list(sources)) if len(sources) else None
        if one is None or kind < 0.3:
            one = ET.SubElement(sources, sources.tag[:-1])
            for field in ("name", "part_no", "description"):
                ET.SubElement(one, field).text = self.new_text()
            files = ET.SubElement(one, "files")
            ET.SubElement(files, "file", {"type": "FILE_DATASHEET", "name": "https://example.com/ż?a&b"})
        elif kind < 0.45:
            sources.remove(one)
        else:
            one.find(self.chance.choice(("name", "part_no", "description"))).text = self.new_text()

    def work(self, until, kill_clients):
        """Edits and syncs until then, and until what was edited is sent."""
        usual = 0.2
        with open(self.folder / "log", "a", encoding="utf-8") as log:
            def keep(line):
                log.write(json.dumps(dict(line, client=self.number)) + "\n")
                log.flush()
            try:
                self.read()
                keep({"program": self.store_program})
                was_cut = False
                while True:
                    if not was_cut:
                        for _ in range(self.chance.randint(1, 10)):
                            self.edit()
                        self.write()
                        edits = self.edits()
                    before = self.bytes()
                    is_killed = self.chance.random() * 100 < kill_clients and time.monotonic() < until
                    told = self.sync(self.chance.choice(["mine", "theirs"]),
                                     self.chance.uniform(0.01, 1.3 * usual) if is_killed else None)
                    after = self.bytes()
                    told.update(edits=edits, base=self.release, half=before[0] != after[0] and before[1] == after[1])
                    keep(told)
                    if told["code"] == 0:
                        usual = told["seconds"]
                        was_cut = False
                        self.read()
                        if time.monotonic() > until:
                            return
                        continue
                    if not is_killed and before != after:
                        raise ValueError("a sync that failed changed the file: " + told["fault"])
                    # Whether anything was sent only the next sync can tell.
                    was_cut = was_cut or is_killed or time.monotonic() > until
                    if time.monotonic() > until + PATIENCE:
                        raise ValueError("no sync is done any more: " + told["fault"])
                    time.sleep(self.chance.uniform(0, 1) if told["code"] != -9 else 0)
            except Exception as fault:  # pylint: disable=broad-except
                keep({"broken": "%s: %s" % (type(fault).__name__, fault)})

    def bytes(self):
        return self.file.read_bytes(), Path(str(self.file) + ".shared").read_bytes()

    def log(self):
        with open(self.folder / "log", encoding="utf-8") as lines:
            return [json.loads(line) for line in lines]


# --- The server --------------------------------------------------------------------------------------

class Server:
    def __init__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="kivzp-pg-"))
        self.folder.rmdir()
        self.address = self.run("start")
        self.kills = 0

    def run(self, what):
        # Without pipes that a server would keep open.
        with tempfile.TemporaryFile("w+") as out:
            done = subprocess.run([SERVER, what, self.folder], stdout=out, stderr=subprocess.STDOUT, check=False)
            out.seek(0)
            told = out.read().strip()
        if done.returncode:
            raise RuntimeError("%s: %s" % (what, told))
        return told.split("\n")[-1]

    def ask(self, sql):
        """The rows of a question as dictionaries."""
        told = subprocess.run(["psql", self.address, "-qAt", "-c",
                               "set search_path to kivzp; select row_to_json(t) from (%s) t" % sql],
                              capture_output=True, text=True, check=True).stdout
        return [json.loads(line) for line in told.split("\n") if line]

    def kill_now_and_then(self, seconds, ended, chance):
        while not ended.wait(seconds):
            self.run("kill")
            self.kills += 1
            ended.wait(chance.uniform(0, 3))
            for attempt in range(20):
                try:
                    self.run("start")
                    break
                except RuntimeError:
                    # What the killed one left goes a moment later.
                    if attempt == 19:
                        raise
                    time.sleep(0.5)

    def processor(self):
        """Seconds of processor that the server has used."""
        first = int((self.folder / "data" / "postmaster.pid").read_text(encoding="ascii").split("\n", 1)[0])
        ticks = 0
        for process in Path("/proc").glob("[0-9]*"):
            try:
                fields = (process / "stat").read_text(encoding="ascii", errors="replace").rsplit(")", 1)[1].split()
            except OSError:
                continue
            if int(process.name) == first:
                ticks += sum(map(int, fields[11:15]))  # and its children that ended
            elif int(fields[1]) == first:
                ticks += sum(map(int, fields[11:13]))
        return ticks / os.sysconf("SC_CLK_TCK")

    def connected(self):
        """Seconds for which programs had it work, or wait within a transaction."""
        return self.ask("select (active_time + idle_in_transaction_time) / 1000 s from pg_stat_database where "
                        "datname = 'kivzp'")[0]["s"]

    def close(self, keep):
        self.run("stop" if keep else "remove")


# --- What has to hold ---------------------------------------------------------------------------------

class History:
    """The store's rows and changes of a document."""

    def __init__(self, server):
        document = "(select id from document where name = '%s')" % NAME
        self.changes = server.ask("select c.*, r.program from change c join release r on r.number = c.release where "
                                  "document = %s order by c.release, c.number" % document)
        self.rows = {}
        for table in ("material_group", "material"):
            for row in server.ask("select * from %s where row_document = %s" % (table, document)):
                self.rows[row["row_id"]] = dict(row, table=table)
        self.releases = server.ask("select number, program from release order by number")
        self.now = server.ask("select release from about")[0]["release"]
        self.of_row = defaultdict(list)
        self.of_field = defaultdict(list)
        self.by_key = defaultdict(set)  # rows that have the KTM, or a group's name, or had it
        for change in self.changes:
            self.of_row[change["row_id"]].append(change)
            self.of_field[change["row_id"], change["field"] or change["what"]].append(change)
        for row, of in self.rows.items():
            key = "d_ktm" if of["table"] == "material" else "name"
            self.by_key[of[key]].add(row)
            for change in self.of_field[row, key]:
                self.by_key[change["before"]].add(row)

    def faults(self):
        numbers = [release["number"] for release in self.releases]
        if numbers != list(range(1, self.now + 1)):
            yield "release: %d rows, the last %s, the counter %d" % (len(numbers), numbers[-1:], self.now)
        for row, of in self.rows.items():
            for fault in self.chain_faults(row, of):
                yield "%s %s: %s" % (of["table"], of.get("d_ktm") or of.get("name"), fault)
        for row in self.of_row:
            if row not in self.rows:
                yield "the history has a row %s that is none" % row

    def chain_faults(self, row, of):
        changes = self.of_row[row]
        whats = [change["what"] for change in changes]
        if whats[:1] != ["added"] or whats.count("added") != 1:
            yield "begins with %s" % whats[:3]
        if not {"added", "removed", "restored", "moved", "changed"} >= set(whats):
            yield "unknown: %s" % set(whats)
        if changes and of["row_release"] < changes[-1]["release"]:
            yield "is of release %d, was changed in %d" % (of["row_release"], changes[-1]["release"])
        last = 0
        for change in changes:
            if not last <= change["based_on"] < change["release"] and change["based_on"] != last:
                yield "release %d: is based on %d, was changed in %d" % (change["release"], change["based_on"], last)
            if change["what"] in ("changed", "moved") and change["before"] == change["after"]:
                yield "release %d: %s is no change" % (change["release"], change["field"] or "moved")
        steps = {}
        for change in changes:
            if change["what"] in ("changed", "moved"):
                steps.setdefault(change["field"] or "row_below", []).append(change)
        for field, chain in steps.items():
            for one, after in zip(chain, [*(change["before"] for change in chain[1:]), of[field]]):
                if one["after"] != after:
                    yield "release %d, %s: became %r, and was %r then" % (one["release"], field, one["after"], after)
        gone = [what for what in whats if what in ("removed", "restored")]
        if gone != ["removed", "restored"] * (len(gone) // 2) + ["removed"] * (len(gone) % 2) \
                or len(gone) % 2 != of["row_gone"]:
            yield "removed and restored: %s, gone: %d" % (gone, of["row_gone"])

    def text_at(self, row, field, release):
        of = self.rows[row]
        column = {"moved": "row_below"}.get(field, field)
        text = next((change["before"] for change in self.of_field[row, field] if change["release"] > release),
                    of.get(column, ""))
        return nested(text) if field in NESTED else text

    def gone_at(self, row, release):
        for change in self.of_row[row]:
            if change["release"] > release and change["what"] in ("removed", "restored"):
                return change["what"] == "restored"
        return bool(self.rows[row]["row_gone"])


def frozen(value):
    """Lists of JSON as the tuples that they were."""
    return tuple(frozen(part) for part in value) if isinstance(value, list) else value


class Check:
    """What the clients did, held against the store's history."""

    def __init__(self, history):
        self.history = history
        self.counts = Counter()
        self.faults = []

    def client(self, log):
        number = log[0]["client"]
        self.program = log[0].get("program")
        self.log = [line for line in log[1:] if "edits" in line]
        begun = 0
        for place, line in enumerate(self.log):
            if line["code"] == 0:
                tries = self.log[begun:place + 1]
                begun = place + 1
                self.round(number, tries)
        self.nothing_else(number)

    def round(self, number, tries):
        """The tries of one sync, of which the last was done."""
        done = tries[-1]
        first, last = tries[0]["base"], done["release"]
        self.within = lambda change: first < change["release"] <= last
        self.mine = lambda change: self.within(change) and change["program"] == self.program
        self.gave_way = any(one["how"] == "theirs" for one in tries)
        if done["sent"] and not any(release["number"] == last and release["program"] == self.program
                                    for release in self.history.releases[last - 1:last]):
            self.faults.append("client %d sent release %d, which is none of its own" % (number, last))
        for edit in done["edits"]:
            found = self.find(edit, last)
            self.counts[edit["what"] + ": " + (found or "lost")] += 1
            if not found:
                self.faults.append("client %d lost %s" % (number, json.dumps(
                    {**edit, "base": first, "release": last, "how": [one["how"] for one in tries]},
                    ensure_ascii=False)[:600]))

    def find(self, edit, last):
        """Where an edit went; empty when it is lost."""
        return self.find_added(edit, last) if edit["what"] == "added" else self.find_in_row(edit, last)

    def find_added(self, edit, last):
        key = "d_ktm" if edit["table"] == "material" else "name"
        for row in self.history.by_key[edit["texts"][key]]:
            of = self.history.of_row[row]
            if not any(self.mine(change) and (change["what"] == "added" or change["field"] == key) for change in of):
                continue
            wrong = [field for field, text in edit["texts"].items()
                     if self.history.text_at(row, field, last) != frozen(text)
                     and not any(self.within(change) for change in self.history.of_field[row, field])]
            return "" if wrong else "in the history"
        return ""

    def find_in_row(self, edit, last):
        row, what = edit["row"], edit["what"]
        field = edit.get("field", what)
        wanted = frozen(edit.get("after"))
        is_new_group = what == "moved" and wanted not in self.history.rows
        if is_new_group:
            wanted = next(iter(self.history.by_key[wanted]), None)  # a new group, by its name
        changes = [change for change in self.history.of_row[row] if self.within(change)]
        same = [change for change in changes if (change["field"] or change["what"]) == field]
        for change in same:
            after = nested(change["after"]) if field in NESTED else change["after"]
            if self.mine(change) and (what == "removed" or after == wanted):
                return "in the history"
        others = [change for change in changes if change["program"] != self.program]
        if what == "removed":
            if self.history.gone_at(row, last):
                return "the same by others"
            # A group stays for what others put into it.
            if self.history.rows[row]["table"] == "material_group" and any(
                    self.history.text_at(one, "moved", last) == row and not self.history.gone_at(one, last)
                    for one in self.history.rows if self.history.rows[one]["table"] == "material"):
                return "the group is in use"
            if self.gave_way and any(change["what"] in ("changed", "restored") for change in others):
                return "gave way"
        else:
            # A new group may have got the row of the one that was removed.
            if (same or is_new_group) and self.history.text_at(row, field, last) == wanted:
                return "the same by others"
            if self.gave_way and any((change["field"] or change["what"]) == field for change in others):
                return "gave way"
            if self.gave_way and any(change["what"] == "removed" for change in others):
                return "gave way to a removal"
        return self.in_another_row(edit, changes, last)

    def in_another_row(self, edit, changes, last):
        """A record of which KTM and content were changed at once may have become a new row, a group that was
        renamed and lost its materials, too; and a new one may have got the row of one that was removed in its
        place."""
        if edit["what"] == "removed":
            renamed = any(self.mine(change) and change["field"] in ("d_ktm", "name") for change in changes)
            return "became another" if renamed else ""
        if edit.get("another") and any(self.mine(change) and change["what"] == "added"
                                       for row in self.history.by_key[edit["after"]]
                                       for change in self.history.of_row[row]):
            return "in another row"
        for row in self.history.by_key[edit.get("ktm")]:
            if any(self.mine(change) and (change["what"] == "added" or change["field"] == "d_ktm")
                   for change in self.history.of_row[row]) \
                    and (edit["what"] == "moved"
                         or self.history.text_at(row, edit["field"], last) == frozen(edit["after"])):
                return "in another row"
        return ""

    def nothing_else(self, number):
        """What the store says that this client changed, it did change."""
        made = set()
        keys = set()
        others = set()  # groups that became others, under both rows
        half = []
        for place, line in enumerate(self.log):
            if line["half"]:
                half.append((line["base"], next((one["release"] for one in self.log[place:] if one["code"] == 0), 0)))
            for edit in line["edits"]:
                made.add((edit.get("row"), edit.get("field", edit["what"]),
                          None if edit["what"] in ("removed", "added", "moved") else frozen(edit["after"])))
                if edit.get("another"):
                    others |= {edit["row"]} | self.history.by_key[edit["after"]]
                keys.add(edit.get("ktm") or edit.get("texts", {}).get("d_ktm") or edit.get("texts", {}).get("name"))
        became = {(change["row_id"], change["release"]) for change in self.history.changes
                  if change["program"] == self.program and change["field"] in ("d_ktm", "name")
                  and change["after"] in keys and (change["row_id"], change["field"], change["after"]) not in made}
        for change in self.history.changes:
            if change["program"] != self.program or change["what"] in ("added", "restored"):
                continue
            after = None if change["what"] != "changed" else nested(change["after"]) if change["field"] in NESTED \
                else change["after"]
            if (change["row_id"], change["field"] or change["what"], after) in made:
                continue
            row = self.history.rows[change["row_id"]]
            if (change["row_id"], change["release"]) in became or {change["row_id"], change["after"]} & others or (
                    change["what"] == "removed" and row.get("d_ktm") is not None
                    and any(made_row == change["row_id"] and field == "d_ktm" for made_row, field, _ in made)):
                self.counts["told of another row"] += 1
                continue
            # Its file was written, what lies beside it not: what came once is asked about again.
            if any(base < change["release"] <= last for base, last in half):
                self.counts["sent again after half a sync"] += 1
                continue
            self.counts["not edited"] += 1
            self.faults.append("client %d changed without an edit: %s" % (number, json.dumps(
                dict(change, ktm=row.get("d_ktm")), ensure_ascii=False)[:600]))


def settle(clients):
    """All sync until nothing moved twice round; what is wrong with it."""
    quiet = 0
    for _ in range(10):
        moved = 0
        for client in clients:
            told = client.sync("mine")
            if told["code"]:
                return ["client %d at the end: %s" % (client.number, told["fault"])]
            if told["sent"]:
                return ["client %d sends without an edit: %s" % (client.number, told)]
            moved += told["fetched"]
        quiet = quiet + 1 if moved == 0 else 0
        if quiet == 2:
            return []
    return ["it does not come to rest"]


def compare(clients, fresh, is_killing):
    """What the files differ in from a new clone, and what is wrong with them."""
    faults = []
    wanted = content_of(fresh.file)
    for client in clients:
        try:
            found = difference(content_of(client.file), wanted)
            if found:
                faults.append("client %d differs from a new clone: %s" % (client.number, found))
            client.read()
        except (ValueError, ET.ParseError) as fault:
            faults.append("client %d: %s" % (client.number, fault))
        # What a killed one left goes when the program opens the file.
        left = sorted(path.name for path in client.folder.iterdir() if not is_killing or ".kivzp-" not in path.name)
        if left != ["database.xml", "database.xml.shared", "home", "log"]:
            faults.append("client %d: left over: %s" % (client.number, left))
    code, _, err = clients[0].cli("validate", *[client.file for client in clients])
    if code:
        faults.append("invalid: " + err[:600])
    return faults


# --- Runs --------------------------------------------------------------------------------------------

class Run:
    """A server, a published database, clients at work for a time, and what came of it."""

    def __init__(self, given, count, seconds, number):
        self.folder = Path(tempfile.mkdtemp(prefix="kivzp-shared-"))
        self.server = Server()
        self.faults = []
        program = Path(given.program).resolve()
        try:
            publisher = Client(program, self.server.address, self.folder, 0, number)
            shutil.copyfile(given.data or ROOT / "_files" / "db_warehouse.xml", publisher.file)
            code, _, err = publisher.cli("publish", "--init", publisher.file, "--as", NAME, "--store",
                                         self.server.address)
            if code:
                raise RuntimeError("publish: " + err)
            self.clients = [Client(program, self.server.address, self.folder, i + 1, number) for i in range(count)]
            for client in self.clients:
                client.clone()
            self.work(given, seconds, number)
            self.check(program, number, given)
        finally:
            self.server.close(keep=bool(self.faults))
            if not self.faults:
                shutil.rmtree(self.folder)

    def work(self, given, seconds, number):
        used = self.server.processor()
        connected = self.server.connected()
        until = time.monotonic() + seconds
        workers = [multiprocessing.Process(target=client.work, args=(until, given.kill_clients), daemon=True)
                   for client in self.clients]
        begun = time.monotonic()
        for worker in workers:
            worker.start()
        ended = threading.Event()
        if given.kill_server:
            killer = threading.Thread(target=self.server.kill_now_and_then,
                                      args=(given.kill_server, ended, random.Random(number)))
            killer.start()
            time.sleep(max(0, until - time.monotonic()))
            ended.set()
            killer.join()
        for worker in workers:
            worker.join()
        self.seconds = time.monotonic() - begun
        self.processor = self.server.processor() - used
        self.connected = self.server.connected() - connected

    def check(self, program, number, given):
        logs = [client.log() for client in self.clients]
        lines = [line for log in logs for line in log]
        self.faults += ["client %d: %s" % (line["client"], line["broken"]) for line in lines if "broken" in line]
        self.syncs = [line for line in lines if line.get("code") == 0]
        self.failed = Counter(line["fault"].rsplit(".xml: ", 1)[-1] for line in lines if line.get("code", 0) > 0)
        self.cut = sum(line.get("code", 0) < 0 for line in lines)
        if not given.kill_server:
            self.faults += ["%d times: %s" % (count, fault) for fault, count in self.failed.items()]
        self.faults += settle(self.clients)
        fresh = Client(program, self.server.address, self.folder, len(self.clients) + 1, number)
        fresh.clone()
        self.faults += compare(self.clients, fresh, given.kill_clients > 0)
        history = History(self.server)
        self.faults += history.faults()
        check = Check(history)
        for log in logs:
            check.client(log)
        self.faults += check.faults
        self.counts = check.counts
        self.kept = len(history.changes)
        self.size = self.server.ask("select pg_total_relation_size('change') s")[0]["s"] / max(1, len(history.changes))

    def told(self):
        seconds = sorted(line["seconds"] for line in self.syncs) or [0]
        sent = sum(line["sent"] for line in self.syncs)
        told = {"clients": len(self.clients), "syncs": len(self.syncs), "syncs/s": len(self.syncs) / self.seconds,
                "rows sent/s": sent / self.seconds,
                "rows fetched/s": sum(line["fetched"] for line in self.syncs) / self.seconds,
                "mean s": sum(seconds) / len(seconds), "95 % s": seconds[int(len(seconds) * 0.95)],
                "conflicts": sum(line["conflicts"] for line in self.syncs)}
        if not self.server.kills:
            told["processor ms"] = 1000 * self.processor / max(1, len(self.syncs))
            told["in store ms"] = 1000 * self.connected / max(1, len(self.syncs))
        return told

    def tell(self):
        for name, value in self.told().items():
            print("%-15s %s" % (name, round(value, 3)))
        print("%-15s %d, %d bytes each" % ("changes kept", self.kept, self.size))
        if self.server.kills:
            print("the server was killed %d times" % self.server.kills)
        if self.cut:
            print("%d syncs were killed" % self.cut)
        for fault, count in self.failed.most_common(12):
            print("%6d syncs failed: %s" % (count, fault))
        for what, count in sorted(self.counts.items()):
            print("%6d %s" % (count, what))
        tell_faults(self)


def tell_faults(run):
    for fault in run.faults[:40]:
        print("FAULT", fault)
    if run.faults:
        print("%d faults; kept: %s and %s" % (len(run.faults), run.folder, run.server.folder))


def scale(given):
    shown = ["clients", "syncs/s", "rows sent/s", "rows fetched/s", "mean s", "95 % s", "processor ms", "in store ms"]
    print(" | ".join("%14s" % name for name in shown))
    bad = False
    for count in (1, 2, 5, 10, 20):
        run = Run(given, count, given.seconds, given.run)
        told = run.told()
        print(" | ".join("%14s" % round(told[name], 2) for name in shown), flush=True)
        tell_faults(run)
        bad = bad or bool(run.faults)
    return bad


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("program")
    arguments.add_argument("--data", help="the database; else the one that ships with the program")
    arguments.add_argument("--clients", type=int, default=20)
    arguments.add_argument("--minutes", type=float, default=10)
    arguments.add_argument("--kill-server", type=float, default=0, metavar="SECONDS")
    arguments.add_argument("--kill-clients", type=float, default=0, metavar="PERCENT")
    arguments.add_argument("--scaling", action="store_true")
    arguments.add_argument("--seconds", type=float, default=20, help="of each step of --scaling")
    arguments.add_argument("--run", type=int, default=int(time.time()))
    given = arguments.parse_args()
    print("run", given.run, flush=True)
    if given.scaling:
        return 1 if scale(given) else 0
    run = Run(given, given.clients, given.minutes * 60, given.run)
    run.tell()
    return 1 if run.faults else 0


if __name__ == "__main__":
    sys.exit(main())
