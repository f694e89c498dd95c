"""Prints as JSON what Python's mail reader finds in a message."""
import email
import email.policy
import hashlib
import json
import sys

with open(sys.argv[1], "rb") as file:
    message = email.message_from_binary_file(file, policy=email.policy.default)
print(json.dumps({
    "subject": message["subject"],
    "to": [[a.display_name, a.addr_spec] for a in message["to"].addresses],
    "unsent": message["x-unsent"],
    "html": message.get_body(("html",)).get_content(),
    "plain": message.get_body(("plain",)).get_content(),
    "files": [[a.get_filename(), hashlib.md5(a.get_payload(decode=True)).hexdigest()]
              for a in message.iter_attachments()]}))
