-- A port call has no id of its own, so the object is a text without a foreign key; the server checks it.
CREATE TABLE remarks (
    owner TEXT NOT NULL,
    type INTEGER NOT NULL CHECK (type IN (2, 3, 4)),
    objectid TEXT NOT NULL,
    seq INTEGER NOT NULL CHECK (seq >= 1),
    subject TEXT NOT NULL,
    body TEXT NOT NULL,
    cdate INTEGER NOT NULL,
    udate INTEGER NOT NULL,
    PRIMARY KEY (owner, type, objectid, seq)
) STRICT, WITHOUT ROWID;
