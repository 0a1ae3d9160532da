#!/usr/bin/env python3
"""Writes the document and design files that the interchange tests read.

They are made by hand with Python's plistlib rather than by Vorn's own
writer, so the tests also read archives laid out differently: class records
first, immutable dictionaries, mutable arrays and strings, shared key
strings, integer and real times. Run it again only to change the fixtures.
"""
import datetime
import os
import plistlib
from plistlib import UID

here = os.path.dirname(os.path.abspath(__file__))


def archive(objects, root):
    return plistlib.dumps({
        "$archiver": "NSKeyedArchiver",
        "$version": 100000,
        "$top": {"root": UID(root)},
        "$objects": objects,
    }, fmt=plistlib.FMT_BINARY)


def document():
    o = ["$null"]

    def add(x):
        o.append(x)
        return UID(len(o) - 1)

    dict_class = add({"$classname": "NSDictionary", "$classes": ["NSDictionary", "NSObject"]})
    array_class = add({"$classname": "NSMutableArray", "$classes": ["NSMutableArray", "NSArray", "NSObject"]})
    date_class = add({"$classname": "NSDate", "$classes": ["NSDate", "NSObject"]})
    mstring_class = add({"$classname": "NSMutableString", "$classes": ["NSMutableString", "NSString", "NSObject"]})
    k = {name: add(name) for name in [
        "class", "title", "unitCount", "baseAmount", "isTax1Applied", "uniqueID", "number", "date", "due",
        "kind", "status", "amount", "subject", "items", "vornDic", "misc2", "notes"]}
    generic = add("NSManagedObject")

    def dictionary(pairs):
        keys = [k[name] for name, _ in pairs]
        values = [value for _, value in pairs]
        return add({"NS.keys": keys, "NS.objects": values, "$class": dict_class})

    item1 = dictionary([
        ("class", generic), ("title", add("Design work")), ("unitCount", add(2.5)), ("baseAmount", add(80.0)),
        ("isTax1Applied", add(True)), ("uniqueID", add("ITEM-1"))])
    item2 = dictionary([
        ("class", generic), ("title", add({"NS.string": "Hosting", "$class": mstring_class})),
        ("unitCount", add(12)), ("baseAmount", add(4.75)), ("isTax1Applied", add(False)),
        ("uniqueID", add("ITEM-2"))])
    items = add({"NS.objects": [item1, item2], "$class": array_class})
    # 2026-02-14 09:30:00 UTC as a real, and 2026-03-16 00:00:00 UTC as an integer.
    date = add({"NS.time": 792754200.0, "$class": date_class})
    due = add({"NS.time": 795312000, "$class": date_class})
    doc = dictionary([
        ("class", generic), ("uniqueID", add("DOC-PY-1")), ("number", add("RE-2026-042")), ("date", date),
        ("due", due), ("kind", add(1)), ("status", add(1)), ("amount", add(232.53)),
        ("subject", add("Website, February")), ("misc2", add(-3)), ("notes", add("Grüße 😀")),
        ("items", items)])
    root = dictionary([("vornDic", doc)])
    return archive(o, root.data)


def design():
    o = ["$null"]

    def add(x):
        o.append(x)
        return UID(len(o) - 1)

    root = add(None)
    design_dict = add(None)
    cls = add({"$classname": "NSMutableDictionary", "$classes": ["NSMutableDictionary", "NSDictionary", "NSObject"]})
    pairs = [("class", "Design"), ("uniqueID", "DESIGN-PY-1"), ("title", "From Python"),
             ("invoice", "<html><body>%ITEMSLIST% %TOTAL%</body></html>"), ("item", "<p>%ITEMSTITLE%</p>"),
             ("css", "body { color: #333; }"), ("isDefault", True)]
    keys = [add(name) for name, _ in pairs]
    values = [add(value) for _, value in pairs]
    o[design_dict.data] = {"NS.keys": keys, "NS.objects": values, "$class": cls}
    o[root.data] = {"NS.keys": [add("designDic")], "NS.objects": [design_dict], "$class": cls}
    return archive(o, root.data)


def plain_document():
    return plistlib.dumps({"vornDic": {
        "class": "NSManagedObject", "uniqueID": "DOC-PLAIN-1", "number": "Q-7", "kind": 0,
        "date": datetime.datetime(2026, 1, 5, 8, 0, 0), "amount": 99.5,
        "items": [{"class": "NSManagedObject", "title": "Consulting", "unitCount": 1.0}]}}, fmt=plistlib.FMT_XML)


def shared_bomb():
    # Forty levels of arrays that each hold the next one twice: 200 bytes
    # that unfold into 2^40 values for a reader that copies shared objects.
    x = ["leaf"]
    for _ in range(40):
        x = [x, x]
    return plistlib.dumps(x, fmt=plistlib.FMT_BINARY)


for name, data in [("python-document.vorn", document()), ("python-design.design", design()),
                   ("plain-document.vorn", plain_document()),
                   ("shared-bomb.plist", shared_bomb())]:
    with open(os.path.join(here, name), "wb") as f:
        f.write(data)
