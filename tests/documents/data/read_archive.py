#!/usr/bin/env python3
"""Reads a keyed archive with Python's plistlib alone and prints its root
object as JSON: an independent check that Vorn's archives are what the
platform's unarchiver expects. Dates print as seconds since 2001-01-01,
data as hex."""
import json
import sys
import plistlib


def main(path):
    with open(path, "rb") as f:
        plist = plistlib.load(f)
    assert plist["$archiver"] == "NSKeyedArchiver", plist["$archiver"]
    assert plist["$version"] == 100000
    objects = plist["$objects"]
    assert objects[0] == "$null"

    def resolve(uid):
        value = objects[uid.data]
        if isinstance(value, dict) and "$class" in value:
            classname = objects[value["$class"].data]["$classname"]
            if classname in ("NSDictionary", "NSMutableDictionary"):
                return {resolve(k): resolve(v) for k, v in zip(value["NS.keys"], value["NS.objects"])}
            if classname in ("NSArray", "NSMutableArray"):
                return [resolve(v) for v in value["NS.objects"]]
            if classname == "NSDate":
                return {"date": value["NS.time"]}
            raise ValueError("unexpected class " + classname)
        if isinstance(value, bytes):
            return {"data": value.hex()}
        return value

    json.dump(resolve(plist["$top"]["root"]), sys.stdout, ensure_ascii=False, sort_keys=True)


main(sys.argv[1])
