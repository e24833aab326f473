// Reads each database named with palm-pdb and writes it back; the bytes must be the same.
const fs = require('fs');
const { RawPrcDatabase } = require('palm-pdb');

for (const path of process.argv.slice(2)) {
    const bytes = fs.readFileSync(path);
    const database = RawPrcDatabase.from(bytes);
    if (database.records.length === 0 || !bytes.equals(database.serialize())) {
        console.error(`${path}: comes back changed`);
        process.exit(1);
    }
    console.log(`${path}: ${database.records.length} resources come back the same`);
}
